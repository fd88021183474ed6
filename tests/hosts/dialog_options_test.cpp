// What the dialog shows of a job's options, and what travels.
#include <QtGui/QAccessible>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <ctime>

#include "hosts/dialog/panes/option_pane.h"
#include "tests/support/dialog_printer.h"
#include "tests/support/dialog_support.h"
#include "tests/support/more_choices.h"

namespace kesto::test {
namespace {

QString noteOf(const PrintDialog& dialog) {
  return dialog.findChild<QLabel*>(u"generalNote"_s)->text();
}

TEST_F(DialogPrint, WhatIsShownIsWhatIsSent) {
  m_folder.write(u"lpoptions"_s, "Default Office_MFP copies=4 page-ranges=3 sides=two-sided-short-edge\n");
  qputenv("HOME", m_folder.path(u""_s).toUtf8());
  QDir().mkdir(m_folder.path(u".cups"_s));
  QFile::rename(m_folder.path(u"lpoptions"_s), m_folder.path(u".cups/lpoptions"_s));
  m_options.jobOptions = {{u"page-ranges"_s, u"2"_s},
                          {u"sides"_s, u"two-sided-long-edge"_s},
                          {u"media"_s, u"A4"_s},
                          {u"PageSize"_s, u"A5"_s}};
  startPrinter();
  openReady();
  const JobOptions& options = m_dialog->jobOptions();
  EXPECT_EQ(widget<QSpinBox>(u"copies"_s)->value(), 4) << "kept for the queue";
  EXPECT_EQ(options.pages(), u"2"_s) << "given for the job";
  EXPECT_EQ(options.value(u"Duplex"_s), u"DuplexNoTumble"_s);
  EXPECT_EQ(options.value(u"PageSize"_s), u"A5"_s);
  EXPECT_TRUE(DialogUser(*m_dialog).choose(u"Duplex"_s, 0));
  widget<QSpinBox>(u"copies"_s)->setValue(1);
  click(u"print"_s);
  awaitJob(1);
  const QMap<QString, QString> sent = m_printer->attributesOfJob(1, cupsUser());
  forEachValue(
      u"copies=1 page-ranges=2-2 sides= Duplex=None media= PageSize=A5"_s,
      [&](const QString& name, const QString& value) { EXPECT_EQ(sent.value(name), value) << name; });
  m_options.jobOptions = {{u"copies"_s, u"1"_s}, {u"PageSize"_s, u"Custom"_s}, {u"collate"_s, u"?"_s}};
  openReady();
  EXPECT_EQ(widget<QSpinBox>(u"copies"_s)->value(), 1) << "given for the job";
  EXPECT_EQ(
      text(u"message"_s),
      u"This printer does not support PageSize=Custom, collate=?. The job will be printed without it."_s);
}

// A user sets a control: "#2" chooses an item of a list, other texts are typed, and "" is a click.
void setControl(PrintDialog& dialog, const QString& pane, const QString& control, const QString& value) {
  SCOPED_TRACE(control.toStdString());
  DialogUser user(dialog);
  QWidget* shown = nullptr;
  Outcome done = user.turnTo(pane, &shown);
  if (done && value.isEmpty())
    done = user.click(control);
  else if (done)
    done =
        value.startsWith(u'#') ? user.choose(control, value.sliced(1).toInt()) : user.replace(control, value);
  EXPECT_TRUE(done) << done.reason();
}

// Assistive technology sets one, without keys, mouse or focus.
void setAccessibly(PrintDialog& dialog, const QString& pane, const QString& control, const QString& value) {
  SCOPED_TRACE(control.toStdString());
  const auto accessible = [&](const QString& name) {
    return QAccessible::queryAccessibleInterface(dialog.findChild<QWidget*>(name));
  };
  const auto act = [](QAccessibleInterface* on, const QString& action) {
    on->actionInterface()->doAction(action);
  };
  QAccessibleInterface* header = accessible(pane + u"Header"_s);
  if (header->state().collapsed) act(header, QAccessibleActionInterface::pressAction());
  QAccessibleInterface* widget = accessible(control);
  ASSERT_FALSE(widget == nullptr || widget->state().disabled || widget->state().invisible);
  if (value.startsWith(u'#'))
    act(widget->child(0)->child(value.sliced(1).toInt()), QAccessibleActionInterface::toggleAction());
  else if (value.isEmpty())
    act(widget, QAccessibleActionInterface::toggleAction());
  else if (widget->valueInterface() != nullptr)
    widget->valueInterface()->setCurrentValue(value.toInt());
  else
    widget->setText(QAccessible::Value, value);
  QCoreApplication::processEvents();
}

TEST_F(DialogPrint, EachOptionArrivesAsItsControlShowsIt) {
  qputenv("TZ", "Asia/Kolkata");
  ::tzset();
  startPrinter();
  changePpd(u"Office_MFP"_s, fewChoices, moreChoices);
  const QString pdf = QLatin1String(KESTO_TEST_DATA "/../../demo/quarterly-report.pdf");
  const struct {
    int job = 0;
    Text pane, control, value;
    Text attribute = "";  // empty where the next row completes the value
    Text arrives = "";
  } rows[] = {
      {1, "general", "copies", "3", "copies", "3"},
      {1, "general", "collate", "", "collate", "false"},
      {1, "general", "outputorder", "", "outputorder", "reverse"},
      {1, "general", "pages", "2-12", "page-ranges", "2-3"},
      {1, "general", "page-set", "#1", "page-set", "odd"},
      {1, "general", "PageSize", "#5"},
      {1, "general", "paperWidth", "100"},
      {1, "general", "paperHeight", "150.5", "PageSize", "Custom.100x150.5mm"},
      {1, "general", "Duplex", "#1", "Duplex", "DuplexNoTumble"},
      {1, "general", "OutputMode", "#1", "OutputMode", "Best"},
      {1, "general", "InputSlot", "#1", "InputSlot", "Tray2"},
      {1, "general", "MediaType", "#2", "MediaType", "Thick"},
      {1, "layout", "orientation-requested", "#3", "orientation-requested", "reverse-landscape"},
      {1, "layout", "number-up", "#2", "number-up", "4"},
      {1, "layout", "number-up-layout", "#5", "number-up-layout", "tbrl"},
      {1, "layout", "page-border", "#3", "page-border", "double"},
      {1, "layout", "print-scaling", "#4"},
      {1, "layout", "percent", "75", "scaling", "75"},
      {1, "job", "job-hold-until", "#1"},
      {1, "job", "holdTime", "14:30", "job-hold-until", "09:00:00"},
      {1, "job", "job-priority", "#2", "job-priority", "80"},
      {1, "job", "job-billing", "Q2-17", "job-billing", "Q2-17"},
      {1, "job", "job-sheets0", "#1"},
      {1, "job", "job-sheets1", "#2", "job-sheets", "classified,confidential"},
      {1, "more", "Resolution", "#1", "Resolution", "1200dpi"},
      {1, "more", "TonerSave", "#1", "TonerSave", "true"},
      {2, "general", "page-set", "#2", "page-set", "even"},
      {2, "general", "OutputBin", "#1", "OutputBin", "FaceDown"},
      {2, "layout", "number-up", "#6", "Booklet", "true"},
      {2, "layout", "print-scaling", "#1", "print-scaling", "fit"},
      {2, "job", "job-hold-until", "#2", "job-hold-until", "indefinite"},
  };
  for (int number = 1; number <= 4; ++number) {
    SCOPED_TRACE(number);
    const auto set = number <= 2 ? setControl : setAccessibly;
    const int job = number <= 2 ? number : number - 2;
    openReady({pdf});
    for (const auto& row : rows) {
      if (row.job == job) set(*m_dialog, row.pane, row.control, row.value);
    }
    click(u"print"_s);
    await([this] { return m_dialog->job() > 0; }, u"the job"_s);
    const QMap<QString, QString> arrived = m_printer->attributesOfJob(number, cupsUser());
    for (const auto& row : rows) {
      if (row.job != job || row.attribute.isEmpty()) continue;
      EXPECT_EQ(arrived.value(row.attribute), row.arrives) << row.attribute;
    }
    EXPECT_EQ(arrived.value(u"Duplex"_s), job == 1 ? u"DuplexNoTumble"_s : u"DuplexTumble"_s)
        << "job 2 is a booklet";
  }
}

TEST_F(DialogPrint, AnInvalidEntryIsMarkedWithAnExample) {
  startPrinter();
  changePpd(u"Office_MFP"_s, fewChoices, moreChoices);
  openReady();
  const struct {
    Text pane, list, item, field, bad, fault, good;
  } cases[] = {
      {"general", "PageSize", "#5", "paperWidth", "9", "Enter a width between 70.6 and 317.5 mm.", "100"},
      {"layout", "print-scaling", "#4", "percent", "0", "Enter a percentage between 1 and 800.", "75 %"},
      {"job", "job-hold-until", "#1", "holdTime", "25:00", "Enter a time of day, for example 14:30.", "9:05"},
  };
  for (const auto& [pane, list, item, field, bad, fault, good] : cases) {
    setControl(*m_dialog, pane, list, item);
    setControl(*m_dialog, pane, field, bad);
    setControl(*m_dialog, u"job"_s, u"job-priority"_s, u"#1"_s);
    click(u"print"_s);
    EXPECT_EQ(text(u"message"_s), fault);
    EXPECT_EQ(m_dialog->focusWidget()->objectName(), field);
    EXPECT_EQ(widget<QLineEdit>(field)->text(), bad);
    EXPECT_EQ(widget<QLineEdit>(field)->accessibleDescription(), fault);
    setControl(*m_dialog, pane, field, good);
    EXPECT_EQ(text(u"message"_s) + widget<QLineEdit>(field)->accessibleDescription(), u""_s);
  }
}

TEST_F(DialogPrint, ConflictsAreShownInTheBarAndNotSent) {
  startPrinter();
  changePpd(u"Office_MFP"_s, fewChoices, moreChoices);
  openReady();
  setControl(*m_dialog, u"general"_s, u"Duplex"_s, u"#1"_s);
  for (const auto& [type, said] : Cases{{"#1", "Two-sided printing is not possible on Transparency."},
                                        {"#0", ""},
                                        {"#1", "Two-sided printing is not possible on Transparency."}}) {
    setControl(*m_dialog, u"general"_s, u"MediaType"_s, type);
    EXPECT_EQ(text(u"message"_s), said);
  }
  click(u"print"_s);
  EXPECT_EQ(noteOf(*m_dialog), u""_s);
  EXPECT_EQ(widget<QPushButton>(u"messageButton"_s)->text(), u"Turn off two-sided"_s);
  EXPECT_EQ(m_dialog->job(), 0);
  click(u"messageButton"_s);
  EXPECT_EQ(text(u"message"_s), u""_s);
  click(u"print"_s);
  awaitJob(1);
  EXPECT_EQ(m_printer->attributesOfJob(1, cupsUser()).value(u"MediaType"_s), u"Transparency"_s);
}

TEST_F(DialogPrint, PagesBeyondTheDocumentAreNotPrinted) {
  m_options.jobOptions = {{u"page-ranges"_s, u"99"_s}};
  startPrinter();
  openReady({QLatin1String(KESTO_TEST_DATA "/../../demo/quarterly-report.pdf")});
  const QString none = u"The document ends at page 3. Enter page numbers up to 3."_s;
  await([&] { return noteOf(*m_dialog) == none; }, u"the note"_s);
  for (const auto& [pages, said] :
       Cases{{"99", none}, {"4-", none}, {"3-1", "Enter page numbers or ranges, for example 1-3, 5."}}) {
    type(u"pages"_s, pages);
    EXPECT_EQ(noteOf(*m_dialog), said);
    click(u"print"_s);
    EXPECT_EQ(text(u"message"_s), said);
    EXPECT_EQ(m_dialog->job(), 0);
  }
  type(u"pages"_s, u"1-3"_s);
  EXPECT_EQ(noteOf(*m_dialog), u""_s);
  EXPECT_EQ(text(u"message"_s), u""_s);
  type(u"pages"_s, u"2-12"_s);
  EXPECT_EQ(noteOf(*m_dialog), u"The document ends at page 3. Pages that will be printed: 2-3."_s);
  EXPECT_EQ(text(u"paperTotal"_s), u"Total: 2 sheets of paper"_s);
  EXPECT_TRUE(DialogUser(*m_dialog).choose(u"Duplex"_s, 1));
  EXPECT_EQ(text(u"paperTotal"_s), u"Total: 1 sheet of paper"_s);
  widget<QSpinBox>(u"copies"_s)->setValue(3);
  EXPECT_EQ(text(u"paperTotal"_s), u"Total: 3 sheets of paper"_s);
  click(u"print"_s);
  await([this] { return m_dialog->job() > 0; }, u"the job"_s);
  EXPECT_EQ(m_printer->attributesOfJob(1, cupsUser()).value(u"page-ranges"_s), u"2-3"_s);
}

}  // namespace
}  // namespace kesto::test
