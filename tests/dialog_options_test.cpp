// What the dialog shows of a job's options, and what travels.
#include <fcntl.h>

#include <QtWidgets/QSpinBox>
#include <array>

#include "dialog_printer.h"
#include "hosts/dialog/panes/general_pane.h"

namespace kesto::test {
namespace {

// What the scheduler answers to the owner of its first job; empty for nothing.
QString attributeOfFirstJob(const ServerAddress& address, const char* name) {
  std::unique_ptr<PrintServer> server;
  EXPECT_TRUE(address.connect(&server));
  const Ipp request(ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES));
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, "ipp://localhost/jobs/1");
  ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
  Ipp reply;
  EXPECT_TRUE(server->ask(request.get(), &reply));
  std::array<char, 200> value{};
  ipp_attribute_t* found = ippFindAttribute(reply.get(), name, IPP_TAG_ZERO);
  if (found != nullptr) ippAttributeString(found, value.data(), value.size());
  return QString::fromUtf8(value.data());
}

TEST_F(DialogPrint, WhatIsShownIsWhatTravels) {
  m_folder.write(u"lpoptions"_s, "Default Office_MFP copies=4 page-ranges=3 sides=two-sided-short-edge\n");
  qputenv("HOME", m_folder.path(u""_s).toUtf8());
  QDir().mkdir(m_folder.path(u".cups"_s));
  QFile::rename(m_folder.path(u"lpoptions"_s), m_folder.path(u".cups/lpoptions"_s));
  m_options.jobOptions = {{u"page-ranges"_s, u"2"_s},
                          {u"sides"_s, u"two-sided-long-edge"_s},
                          {u"media"_s, u"Custom.10x10cm"_s},
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
  const std::pair<const char*, QString> expected[] = {
      {"copies", u""_s},     {"page-ranges", u"2-2"_s},      {"sides", u""_s},
      {"Duplex", u"None"_s}, {"media", u"Custom.10x10cm"_s}, {"PageSize", u"A5"_s}};
  for (const auto& [name, value] : expected)
    EXPECT_EQ(attributeOfFirstJob(m_options.server, name), value) << name;
  m_options.jobOptions = {{u"copies"_s, u"1"_s}};
  openReady();
  EXPECT_EQ(widget<QSpinBox>(u"copies"_s)->value(), 1) << "given for the job";
}

TEST_F(DialogPrint, ADocumentThatComesAfterTheChoiceBringsItsName) {
  startPrinter();
  m_options.title = u"Window"_s;
  m_options.documentLater = true;
  m_options.channel = 0;
  openReady({});
  click(u"print"_s);
  EXPECT_FALSE(m_dialog->isVisible());
  m_document.readDescriptor(::open(qPrintable(m_folder.path(u"report.pdf"_s)), O_RDONLY), u"Plan"_s);
  await([this] { return m_dialog->job() > 0; }, u"the job"_s);
  EXPECT_EQ(attributeOfFirstJob(m_options.server, "job-name"), u"Plan"_s);
  EXPECT_EQ(m_dialog->jobSettings().value(u"kesto.print.PrintSettings.jobName"_s),
            QString::fromLatin1(QByteArray("Plan").toHex().toUpper()));
}

}  // namespace
}  // namespace kesto::test
