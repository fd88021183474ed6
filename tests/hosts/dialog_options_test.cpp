// What the dialog shows of a job's options, and what travels.
#include <fcntl.h>

#include <QtWidgets/QSpinBox>
#include <array>

#include "hosts/dialog/panes/general_pane.h"
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
  const JobOptions& options = m_dialog->jobOptions();
  EXPECT_EQ(widget<QSpinBox>(u"copies"_s)->value(), 4) << "kept for the queue";
  EXPECT_EQ(options.pages(), u"2"_s) << "given for the job";
  EXPECT_EQ(options.value(u"Duplex"_s), u"DuplexNoTumble"_s);
  EXPECT_EQ(options.value(u"PageSize"_s), u"A5"_s);
  EXPECT_TRUE(DialogUser(*m_dialog).choose(u"Duplex"_s, 0));
  widget<QSpinBox>(u"copies"_s)->setValue(1);
  click(u"print"_s);
  await([this] { return m_dialog->job() > 0; }, u"the job"_s);
  m_printer->waitForLog("job 1");
  const std::pair<const char*, QString> expected[] = {{"copies", u"1"_s}, {"page-ranges", u"2-2"_s},
                                                      {"sides", u""_s},   {"Duplex", u"None"_s},
                                                      {"media", u""_s},   {"PageSize", u"A5"_s}};
  for (const auto& [name, value] : expected)
    EXPECT_EQ(attributeOfJob(m_options.server, 1, name), value) << name;
  m_options.jobOptions = {{u"copies"_s, u"1"_s}, {u"PageSize"_s, u"Custom"_s}, {u"collate"_s, u"?"_s}};
  openReady();
  EXPECT_EQ(widget<QSpinBox>(u"copies"_s)->value(), 1) << "given for the job";
  EXPECT_EQ(
      text(u"message"_s),
      u"This printer does not support PageSize=Custom, collate=?. The job will be printed without it."_s);
}

TEST_F(DialogPrint, PagesThatTheDocumentHasNotAreNotPrinted) {
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
