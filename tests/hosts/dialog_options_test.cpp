// What the dialog shows of a job's options, and what travels.
#include <fcntl.h>

#include <QtWidgets/QSpinBox>
#include <array>

#include "hosts/dialog/panes/general_pane.h"
#include "hosts/session/job_option_table.h"
#include "tests/support/dialog_printer.h"
#include "tests/support/dialog_support.h"

namespace kesto::test {
namespace {

// What the scheduler answers to the owner of a job; empty for nothing.
QString attributeOfJob(const ServerAddress& address, int job, const char* name) {
  std::unique_ptr<PrintServer> server;
  EXPECT_TRUE(address.connect(&server));
  const Ipp request(ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES));
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr,
               qPrintable(u"ipp://localhost/jobs/%1"_s.arg(job)));
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
  Ipp reply;
  EXPECT_TRUE(server->ask(request.get(), &reply));
  std::array<char, 200> value{};
  ipp_attribute_t* found = ippFindAttribute(reply.get(), name, IPP_TAG_ZERO);
  if (found != nullptr) ippAttributeString(found, value.data(), value.size());
  return QString::fromUtf8(value.data());
}

QString noteOf(const PrintDialog& dialog) {
  return dialog.findChild<QLabel*>(u"generalNote"_s)->text();
}

TEST_F(DialogPrint, WhatIsShownIsWhatTravels) {
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
  const GeneralPane& general = m_dialog->general();
  EXPECT_EQ(widget<QSpinBox>(u"copies"_s)->value(), 4) << "kept for the queue";
  EXPECT_EQ(general.pages(), u"2"_s) << "given for the job";
  EXPECT_EQ(general.chosen(u"Duplex"_s), u"DuplexNoTumble"_s);
  EXPECT_EQ(general.chosen(u"PageSize"_s), u"A5"_s);
  EXPECT_TRUE(DialogUser(*m_dialog).choose(u"Duplex"_s, 0));
  widget<QSpinBox>(u"copies"_s)->setValue(1);
  click(u"print"_s);
  await([this] { return m_dialog->job() > 0; }, u"the job"_s);
  m_printer->waitForLog("job 1");
  const std::pair<const char*, QString> expected[] = {{"copies", u""_s}, {"page-ranges", u"2-2"_s},
                                                      {"sides", u""_s},  {"Duplex", u"None"_s},
                                                      {"media", u""_s},  {"PageSize", u"A5"_s}};
  for (const auto& [name, value] : expected)
    EXPECT_EQ(attributeOfJob(m_options.server, 1, name), value) << name;
  m_options.jobOptions = {{u"copies"_s, u"1"_s}};
  openReady();
  EXPECT_EQ(widget<QSpinBox>(u"copies"_s)->value(), 1) << "given for the job";
}

// What a PPD of a printer with more choices has beside the demo printer's.
const QByteArray moreChoices = R"(*VariablePaperSize: True
*MaxMediaWidth: "900"
*MaxMediaHeight: "1300"
*HWMargins: 12 12 12 12
*NonUIOrderDependency: 20 AnySetup *CustomPageSize
*CustomPageSize True: "pop pop pop pop pop"
*ParamCustomPageSize Width: 1 points 200 900
*ParamCustomPageSize Height: 2 points 200 1300
*ParamCustomPageSize WidthOffset: 3 points 0 0
*ParamCustomPageSize HeightOffset: 4 points 0 0
*ParamCustomPageSize Orientation: 5 int 0 3
*OpenUI *MediaType/Media Type: PickOne
*DefaultMediaType: Plain
*MediaType Plain/Plain: ""
*MediaType Transparency/Transparency: ""
*CloseUI: *MediaType
*OpenUI *OutputBin/Output Bin: PickOne
*DefaultOutputBin: Upper
*OutputBin Upper/Upper: ""
*OutputBin FaceDown/Face Down: ""
*CloseUI: *OutputBin
*OpenUI *OutputMode/Quality: PickOne
*DefaultOutputMode: Normal
*OutputMode Normal/Normal: ""
*OutputMode Best/Best: ""
*CloseUI: *OutputMode
)";

TEST_F(DialogPrint, AnOptionGoesByItsNameOnTheQueue) {
  QByteArray description = bytesOf(demoPpd());
  const QByteArray fixed = "*VariablePaperSize: False";
  m_folder.write(u"fixed.ppd"_s, description);
  description.replace("*ColorModel Gray", "*ColorModel RGB/Color: \"\"\n*ColorModel Gray");
  m_folder.write(u"more.ppd"_s, description.replace(fixed, moreChoices));
  struct Given {
    const char* ppd = nullptr;
    const char* options = "";
    const char* travels = "";
    const char* refused = "";
  };
  const Given given[] = {
      {"fixed", "media=A5", "PageSize=A5"},
      {"fixed", "media=iso_a5_148x210mm", "PageSize=A5"},
      {"fixed", "PageRegion=a3 media=A5", "PageSize=A3"},
      {"fixed", "PageRegion=A3 PageSize=Legal", "PageSize=Legal"},
      {"fixed", "media=na-letter,Tray2", "InputSlot=Tray2 PageSize=Letter"},
      {"fixed", "media=tray-3 InputSlot=Tray2", "InputSlot=Tray2"},
      {"fixed", "media=A5,Lunch", "PageSize=A5", "media=A5,Lunch"},
      {"fixed", "media-col={media-size={x-dimension=14800 y-dimension=21000} media-source=tray-2}",
       "InputSlot=Tray2 PageSize=A5"},
      {"fixed", "PageSize=Custom.300x400", "", "PageSize=Custom.300x400"},
      {"fixed", "media=Custom.21x29.7cm", "PageSize=A4"},
      {"fixed", "sides=two-sided-short-edge Duplex=None", "Duplex=None"},
      {"fixed", "sides=two-sided-short-edge", "Duplex=DuplexTumble"},
      {"fixed", "Duplex=Sideways", "", "Duplex=Sideways"},
      {"fixed", "printer-resolution=1200x1200dpi", "Resolution=1200dpi"},
      {"fixed", "print-color-mode=monochrome", "ColorModel=Gray"},
      {"fixed", "print-color-mode=color", "", "print-color-mode=color"},
      {"fixed", "OutputBin=Upper output-bin=top", "OutputBin=Upper"},
      {"fixed", "number-up=2 print-quality=5", "number-up=2 print-quality=5"},
      {"more", "PageSize=Custom.300x400", "PageSize=Custom.300x400"},
      {"more", "PageSize=Custom.30x40", "", "PageSize=Custom.30x40"},
      {"more", "PageSize=Custom", "", "PageSize=Custom"},
      {"more", "media=iso_b5_176x250mm,transparency", "MediaType=Transparency PageSize=Custom.499x709"},
      {"more", "media-type=stationery output-bin=face-down", "MediaType=Plain OutputBin=FaceDown"},
      {"more", "print-quality=5 print-color-mode=color", "ColorModel=RGB OutputMode=Best"},
      {nullptr, "media=A5,Tray2 PageSize=A3 sides=one-sided", "PageSize=A3 sides=one-sided"},
  };
  for (const Given& each : given) {
    SCOPED_TRACE(each.options);
    PpdFile ppd;
    if (each.ppd != nullptr) {
      ASSERT_TRUE(openPpdFile(m_folder.path(QLatin1String(each.ppd) + u".ppd"_s), &ppd));
    }
    const JobChoices choices =
        JobOptionTable(ppd.get()).resolve(parseJobOptions(QString::fromLatin1(each.options)));
    EXPECT_EQ(choices.options, parseJobOptions(QString::fromLatin1(each.travels)));
    EXPECT_EQ(choices.refused.join(u' '), QLatin1String(each.refused));
  }
}

TEST_F(DialogPrint, AnOptionIsOneChoiceWhereverItComesFrom) {
  qputenv("HOME", m_folder.path(u""_s).toUtf8());
  QDir().mkdir(m_folder.path(u".cups"_s));
  startPrinter();
  changePpd(u"Office_MFP"_s, "*VariablePaperSize: False", moreChoices);
  struct Choice {
    const char* kept = "";
    const char* given = "";
    int chosen = -1;  // the row of the paper that is chosen in the dialog, -1 for none
    const char* shown = "";
    const char* travels = "";  // of these options alone
    const char* said = "";
  };
  const Choice choices[] = {
      {"media=A5", "", -1, "A5", "PageSize=A5"},
      {"media=A5", "", 0, "A3", "PageSize=A3"},
      {"media=A5 PageSize=A4", "", -1, "A4", "PageSize=A4"},
      {"media=A5 sides=two-sided-short-edge", "PageRegion=A3 Duplex=None", -1, "A3",
       "PageSize=A3 Duplex=None"},
      {"", "media=A5", 0, "A3", "PageSize=A3"},
      {"", "media=A5 sides=two-sided-long-edge", -1, "A5", "PageSize=A5 Duplex=DuplexNoTumble"},
      {"", "media=Custom.300x400", -1, "Custom 300 x 400 pt", "PageSize=Custom.300x400"},
      {"PageSize=Custom.10x20cm", "", -1, "Custom 10 x 20 cm", "PageSize=Custom.10x20cm"},
      {"", "PageSize=Custom copies=none", -1, "A4", "",
       "This printer cannot do PageSize=Custom, copies=none. The job is printed without it."},
  };
  int job = 0;
  for (const Choice& each : choices) {
    SCOPED_TRACE(QByteArray(each.kept) + " / " + each.given);
    m_folder.write(u".cups/lpoptions"_s, QByteArray("Default Office_MFP ") + each.kept + '\n');
    m_options.jobOptions = parseJobOptions(QString::fromLatin1(each.given));
    openReady();
    auto* paper = widget<QComboBox>(u"PageSize"_s);
    EXPECT_EQ(paper->findData(u"Custom"_s), -1) << "it has no fields for the size";
    EXPECT_EQ(text(u"message"_s), QLatin1String(each.said));
    if (each.chosen >= 0) paper->setCurrentIndex(each.chosen);
    EXPECT_EQ(paper->currentText(), QLatin1String(each.shown));
    click(u"print"_s);
    await([this] { return m_dialog->job() > 0; }, u"the job"_s);
    ++job;
    const QMap<QString, QString> travels = parseJobOptions(QString::fromLatin1(each.travels));
    for (const char* name : {"media", "PageSize", "PageRegion", "sides", "Duplex", "copies"})
      EXPECT_EQ(attributeOfJob(m_options.server, job, name), travels.value(QLatin1String(name))) << name;
  }
}

TEST_F(DialogPrint, PagesThatTheDocumentHasNotAreNotPrinted) {
  m_options.jobOptions = {{u"page-ranges"_s, u"99"_s}};
  startPrinter();
  openReady({QLatin1String(KESTO_TEST_DATA "/../../demo/quarterly-report.pdf")});
  const QString none = u"The document ends with page 3. Enter pages up to it."_s;
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
  EXPECT_EQ(noteOf(*m_dialog), u"The document ends with page 3. Only 2-3 will be printed."_s);
  EXPECT_EQ(text(u"paperTotal"_s), u"Total: 2 sheets of paper"_s);
  EXPECT_TRUE(DialogUser(*m_dialog).choose(u"Duplex"_s, 1));
  EXPECT_EQ(text(u"paperTotal"_s), u"Total: 1 sheet of paper"_s);
  widget<QSpinBox>(u"copies"_s)->setValue(3);
  EXPECT_EQ(text(u"paperTotal"_s), u"Total: 3 sheets of paper"_s);
  click(u"print"_s);
  await([this] { return m_dialog->job() > 0; }, u"the job"_s);
  EXPECT_EQ(attributeOfJob(m_options.server, 1, "page-ranges"), u"2-3"_s);
}

TEST_F(DialogPrint, ADocumentThatComesAfterTheChoiceBringsItsName) {
  startPrinter();
  m_options.title = u"Window"_s;
  m_options.documentLater = true;
  m_options.channel = 0;
  openReady({});
  click(u"print"_s);
  EXPECT_FALSE(m_dialog->isVisible());
  m_document.readFromClient(Descriptor(::open(qPrintable(m_folder.path(u"report.pdf"_s)), O_RDONLY)),
                            u"Plan"_s);
  await([this] { return m_dialog->job() > 0; }, u"the job"_s);
  EXPECT_EQ(attributeOfJob(m_options.server, 1, "job-name"), u"Plan"_s);
  EXPECT_EQ(m_dialog->jobSettings().value(u"kesto.print.PrintSettings.jobName"_s),
            QString::fromLatin1(QByteArray("Plan").toHex().toUpper()));
}

}  // namespace
}  // namespace kesto::test
