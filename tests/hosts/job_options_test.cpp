// What a job's options are on a queue, and what of them travels.
#include "hosts/session/job_options.h"

#include "hosts/cups/option_array.h"
#include "hosts/cups/queue.h"
#include "hosts/session/option_conflict.h"
#include "hosts/session/option_offer.h"
#include "tests/support/demo_process.h"
#include "tests/support/more_choices.h"

namespace kesto::test {
namespace {

// A choice as "option=value"; null pages without "=".
void choose(JobOptions& options, const QString& choice) {
  const bool hasValue = choice.contains(u'=');
  if (!choice.isEmpty())
    options.choose(choice.section(u'=', 0, 0), hasValue ? choice.section(u'=', 1) : QString());
}

struct Case {
  const char* ppd = nullptr;  // null for a queue without one
  const char* kept = "";
  const char* given = "";
  QString chosen = {};
  const char* travels = "";
  const char* refused = "";
  const char* preset = "";  // a preset of the queue, below what is given
};

class OptionsOfAJob : public testing::Test {
 protected:
  OptionsOfAJob() {
    QByteArray description =
        bytesOf(QCoreApplication::applicationDirPath() + u"/../share/kesto/kesto-vq250n.ppd"_s);
    m_folder.write(u"fixed.ppd"_s, description);
    description.replace("*ColorModel Gray", "*ColorModel RGB/Color: \"\"\n*ColorModel Gray");
    m_folder.write(u"more.ppd"_s, description.replace(fewChoices, moreChoices));
  }
  Queue queue(const char* ppd, const char* kept) const {
    Queue queue{.id = u"q"_s};
    if (QByteArray(ppd) == "ipp") {
      queue.attributes = attributesOfPrinter();
    } else if (ppd != nullptr) {
      EXPECT_TRUE(openPpdFile(m_folder.path(QLatin1String(ppd) + u".ppd"_s), &queue.ppd));
    }
    cups_dest_t* destination = nullptr;
    cupsAddDest("q", nullptr, 0, &destination);
    destination->num_options = cupsParseOptions(kept, 0, &destination->options);
    queue.destination.reset(destination);
    return queue;
  }

  // A printer that describes itself.
  static Ipp attributesOfPrinter() {
    Ipp printer(ippNew());
    for (const auto& [name, values] : Cases{
             {"media-supported", "iso_a4_210x297mm iso_a5_148x210mm custom_min_50x50mm custom_max_216x356mm"},
             {"media-default", "iso_a4_210x297mm"},
             {"media-type-supported", "stationery labels"},
             {"sides-supported", "one-sided two-sided-long-edge two-sided-short-edge"},
             {"sides-default", "one-sided"},
             {"print-color-mode-supported", "monochrome color"}}) {
      const QStringList all = values.split(u' ');
      auto* attribute =
          ippAddStrings(printer.get(), IPP_TAG_PRINTER, IPP_TAG_KEYWORD, name.toUtf8().constData(),
                        static_cast<int>(all.size()), nullptr, nullptr);
      for (int i = 0; i < all.size(); ++i)
        ippSetString(printer.get(), &attribute, i, all[i].toUtf8().constData());
    }
    return printer;
  }

  ScratchFolder m_folder;
};

TEST_F(OptionsOfAJob, EachIsSentOnceUnderItsNameOnTheQueue) {
  const Case cases[] = {
      {"fixed", "", "media=A5", {}, "PageSize=A5"},
      {"fixed", "", "media=iso_a5_148x210mm", {}, "PageSize=A5"},
      {"fixed", "", "PageRegion=a3 media=A5", {}, "PageSize=A3"},
      {"fixed", "", "PageRegion=A3 PageSize=Legal", {}, "PageSize=Legal"},
      {"fixed", "", "media=na-letter,Tray2", {}, "InputSlot=Tray2 PageSize=Letter"},
      {"fixed", "", "media=tray-3 InputSlot=Tray2", {}, "InputSlot=Tray2"},
      {"fixed", "", "media=A5,Lunch", {}, "PageSize=A5", "media=A5,Lunch"},
      {"fixed",
       "",
       "media-col={media-size={x-dimension=14800 y-dimension=21000} media-source=tray-2}",
       {},
       "InputSlot=Tray2 PageSize=A5"},
      {"fixed", "", "PageSize=Custom.300x400", {}, "", "PageSize=Custom.300x400"},
      {"fixed", "", "media=Custom.14.8x21cm", {}, "PageSize=A5"},
      {"fixed", "sides=two-sided-short-edge", "sides=two-sided-short-edge Duplex=None", {}, "Duplex=None"},
      {"fixed", "", "sides=two-sided-short-edge", {}, "Duplex=DuplexTumble"},
      {"fixed", "", "Duplex=Sideways", {}, "", "Duplex=Sideways"},
      {"fixed", "", "printer-resolution=1200x1200dpi", {}, "Resolution=1200dpi"},
      {"fixed", "", "print-color-mode=color", {}, "", "print-color-mode=color"},
      {"fixed", "", "OutputBin=Upper output-bin=top", {}, "OutputBin=Upper"},
      {"fixed", "", "number-up=2 print-quality=5", {}, "number-up=2 print-quality=5"},
      {"fixed", "", "number-up=1 number-up-layout=btlr", {}, ""},
      {"fixed", "", "number-up=2 number-up-layout=lrtb page-border=none", {}, "number-up=2"},
      {"fixed", "", "scaling=50", {}, "scaling=50"},
      {"fixed", "", "scaling=50 print-scaling=fill fit-to-page", {}, "print-scaling=fill"},
      {"fixed", "scaling=50", "", u"print-scaling=fit"_s, "print-scaling=fit"},
      {"fixed", "", "scaling=87.5", {}, "scaling=88"},
      {"fixed", "", "scaling=900", {}, "", "scaling=900"},
      {"fixed", "", "scaling=1e300", {}, "", "scaling=1e300"},
      {"fixed", "", "landscape outputorder=reverse-order", {}, "orientation-requested=4 outputorder=reverse"},
      {"fixed", "", "job-hold-until=hold job-priority=33", {}, "job-hold-until=indefinite job-priority=33"},
      {"fixed", "", "job-sheets=secret job-billing=\"\"", {}, "job-sheets=secret,none"},
      {"fixed", "printer-info=Office job-sheets=none,none", "", {}, "job-sheets=none,none"},
      // Where a value comes from.
      {"fixed", "media=A5", "", {}, "PageSize=A5"},
      {"fixed", "media=A5", "", u"PageSize=A3"_s, "PageSize=A3"},
      {"fixed", "media=A5 PageSize=A4", "", {}, "PageSize=A4"},
      {"fixed", "", "media=A4 sides=one-sided", {}, ""},
      {"fixed", "media=A5", "PageRegion=A3", {}, "PageSize=A3"},
      {"fixed", "media=A5", "media=A3", {}, "PageSize=A3", "", "PageSize=Legal"},
      {"fixed", "media=A5", "", {}, "PageSize=Legal", "", "PageSize=Legal"},
      {"fixed", "media=A5", "media=Lunch", {}, "PageSize=A5", "media=Lunch"},
      {"fixed", "copies=4", "", {}, "collate=true copies=4"},
      {"fixed", "copies=4", "", u"copies=1"_s, "copies=1"},
      {"fixed", "copies=1", "COLLATE=off", {}, ""},
      {"fixed", "", "copies=2 collate=No", {}, "collate=false copies=2"},
      {"fixed", "", "copies=none collate=?", {}, "", "collate=? copies=none"},
      {"fixed", "page-ranges=3", "page-ranges=2", u"page-ranges"_s, ""},
      {"fixed", "page-ranges=3", "page-ranges=\"5-, 2-1, -3\"", {}, ""},
      {"fixed", "", "", u"page-ranges=5-, -3"_s, "page-ranges=1-3,5-"},
      {"fixed", "", "", u"page-ranges=9"_s, ""},
      {"more", "", "PageSize=Custom.300x400", {}, "PageSize=Custom.300x400"},
      {"more", "PageSize=Custom.10x20cm", "", {}, "PageSize=Custom.10x20cm"},
      {"more", "", "PageSize=Custom.30x40", {}, "", "PageSize=Custom.30x40"},
      {"more", "", "PageSize=Custom", {}, "", "PageSize=Custom"},
      {"more",
       "",
       "media=iso_b5_176x250mm,transparency",
       {},
       "MediaType=Transparency PageSize=Custom.499x709"},
      {"more", "media-type=stationery", "output-bin=face-down", {}, "MediaType=Plain OutputBin=FaceDown"},
      {"more", "", "print-quality=5 print-color-mode=color", {}, "ColorModel=RGB OutputMode=Best"},
      {"ipp", "", "PageSize=A5 Duplex=DuplexTumble", {}, "media=iso_a5_148x210mm sides=two-sided-short-edge"},
      {"ipp",
       "media=A5",
       "sides=one-sided ColorModel=RGB",
       {},
       "media=iso_a5_148x210mm print-color-mode=color"},
      {"ipp", "", "media=A4 PageSize=Custom.10x15cm", {}, "media=custom_100x150mm_100x150mm"},
      {"ipp", "", "media=A3 print-quality=5", {}, "print-quality=5", "media=A3"},
      {"ipp",
       "",
       "media=A5,labels",
       {},
       "media-col={media-size={x-dimension=14800 y-dimension=21000} media-type=labels}"},
      {nullptr, "", "media=A5,Tray2 PageSize=A3 sides=one-sided", {}, "PageSize=A3 sides=one-sided"},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(QByteArray(each.kept) + " / " + each.given + " / " + each.chosen.toUtf8());
    const Queue open = queue(each.ppd, each.kept);
    JobOptions options;
    options.setPageCount(8);
    options.set(JobOptions::Source::Given, parseJobOptions(QString::fromLatin1(each.given)));
    options.openFor(open);
    options.set(JobOptions::Source::Preset, parseJobOptions(QString::fromLatin1(each.preset)));
    choose(options, each.chosen);
    EXPECT_EQ(options.travelling(), parseJobOptions(QString::fromLatin1(each.travels)));
    EXPECT_EQ(options.refused().join(u' '), QLatin1String(each.refused));
  }
}

TEST_F(OptionsOfAJob, StandardValuesHaveOurTexts) {
  const std::tuple<QString, QString, QString> cases[] = {
      {u"PageSize"_s, u"A4"_s, u"A4"_s},
      {u"InputSlot"_s, u"Tray2"_s, u"Tray 2"_s},
      {u"InputSlot"_s, u"tray-7"_s, u"Tray 7"_s},
      {u"InputSlot"_s, u"by-pass-tray"_s, u"Multi-purpose tray"_s},
      {u"PageSize"_s, u"EnvDL"_s, u"Envelope DL"_s},
      {u"PageSize"_s, u"na_number-10_4.125x9.5in"_s, u"Envelope #10"_s},
      {u"PageSize"_s, u"A4.Fullbleed"_s, u"A4, borderless"_s},
      {u"MediaType"_s, u"Transparency"_s, u"Transparency"_s},
      {u"ColorModel"_s, u"Gray"_s, u"Black and white"_s},
      {u"OutputBin"_s, u"Upper"_s, u"The shelf"_s},
      {u"OutputBin"_s, u"FaceDown"_s, u"Face down"_s},
      {u"StapleLocation"_s, u"StapleDualLeft"_s, u"Two staples, left"_s},
      {u"Finish"_s, u"staple-top-left"_s, u"Staple, top left"_s},
      {u"Finish"_s, u"Vendor7"_s, u"Vendor7"_s},
  };
  const Queue open = queue("more", "");
  JobOptions options;
  options.openFor(open);
  for (const auto& [option, value, text] : cases)
    EXPECT_EQ(options.textOf(option, value), text);
}

TEST_F(OptionsOfAJob, ValuesOfAQueueStayWithTheQueue) {
  JobOptions options;
  QStringList said;
  QObject::connect(&options, &JobOptions::choiceChanged,
                   [&](const QString& option, const QString& choice) { said += option + u'=' + choice; });
  const Queue first = queue("more", "copies=4 job-sheets=secret");
  const Queue second = queue("fixed", "");
  options.set(JobOptions::Source::Given, {{u"media"_s, u"A5"_s}, {u"x"_s, u"y"_s}});
  options.openFor(first);
  options.choose(u"sides"_s, u"two-sided-long-edge"_s);
  options.choose(u"page-ranges"_s, u"2"_s);
  options.choose(u"PageSize"_s, u"Custom.10x15cm"_s);
  EXPECT_EQ(said, QStringList({u"PageSize=A5"_s, u"Duplex=DuplexNoTumble"_s, u"PageSize=Custom.10x15cm"_s}));
  EXPECT_EQ(options.asGiven(), parseJobOptions(u"copies=4 job-sheets=secret media=A5 x=y"_s));
  EXPECT_EQ(options.ofPreset(), (QMap<QString, QString>{{u"Duplex"_s, u"DuplexNoTumble"_s},
                                                        {u"PageSize"_s, u"Custom.10x15cm"_s},
                                                        {u"page-ranges"_s, u"2"_s}}))
      << "without what is kept for the queue or unknown";
  QStringList lines;
  for (const auto& [label, value, differs] : summaryOf(options))
    if (differs) lines += label + u": "_s + value;
  EXPECT_EQ(lines.join(u' '),
            u"Copies: 4 Pages: 2 Paper size: Custom 10 x 15 cm Two-sided: Long edge "
            "Cover sheets: Secret, None"_s);
  options.close();
  options.openFor(second);
  EXPECT_EQ(options.travelling(), parseJobOptions(u"PageSize=A5 page-ranges=2 x=y"_s));
  EXPECT_EQ(options.source(u"media"_s), JobOptions::Source::Given);
  EXPECT_EQ(options.choosePreset(
                parseJobOptions(u"Duplex=DuplexTumble PageSize=Custom.10x15cm TonerSave=True number-up=2"_s)),
            QStringList({u"Paper size: Custom 10 x 15 cm"_s, u"TonerSave: True"_s}));
  EXPECT_EQ(options.travelling(), parseJobOptions(u"Duplex=DuplexTumble PageSize=A5 number-up=2 x=y"_s));
}

TEST_F(OptionsOfAJob, EachGroupOffersTheQueuesOptionsAndSumsUpTheChoices) {
  const struct {
    OptionGroup group;
    const char* offers;
    const char* headline;
    const char* changed;
  } cases[] = {
      {OptionGroup::General,
       "copies collate outputorder page-ranges page-set PageSize Duplex ColorModel OutputMode MediaType "
       "OutputBin",
       "1 copy, All pages, A4", "2 copies, Collate: Off, Pages 2-3, A5, Long edge"},
      {OptionGroup::Layout, "orientation-requested number-up number-up-layout page-border print-scaling",
       "Pages per sheet: 1", "Booklet, 75%"},
      {OptionGroup::Job, "job-hold-until job-priority job-billing", "Now", "Now, Urgent"},
      {OptionGroup::More, "Resolution TonerSave", "", "Resolution: 1200 dpi, Save Toner: On"},
  };
  const Queue open = queue("more", "");
  JobOptions options;
  options.openFor(open);
  options.leaveToPanel({u"InputSlot"_s});
  for (const auto& [group, offers, headline, changed] : cases) {
    QStringList offered;
    for (const OfferedOption& each : offeredOptions(options, group))
      offered.append(each.key);
    EXPECT_EQ(offered.join(u' '), QLatin1String(offers));
    EXPECT_EQ(headlineOf(options, group).text, QLatin1String(headline));
    EXPECT_FALSE(headlineOf(options, group).differs);
  }
  options.set(JobOptions::Source::Chosen,
              parseJobOptions(u"copies=2 nocollate page-ranges=2-3 media=A5 Duplex=DuplexNoTumble Booklet "
                              "scaling=75 job-priority=100 Resolution=1200dpi TonerSave"_s));
  for (const auto& [group, offers, headline, changed] : cases) {
    EXPECT_EQ(headlineOf(options, group).text, QLatin1String(changed));
    EXPECT_TRUE(headlineOf(options, group).differs);
  }
}

TEST_F(OptionsOfAJob, AConflictIsReportedAndResolvedInFavorOfTheLastChoice) {
  const struct {
    QStringList chosen;
    const char* text = nullptr;
    const char* remedy = nullptr;
    const char* travels = nullptr;
  } cases[] = {
      {{u"Duplex=DuplexTumble"_s, u"MediaType=Transparency"_s},
       nullptr,
       nullptr,
       "Duplex=DuplexTumble MediaType=Transparency"},
      {{u"Duplex=DuplexNoTumble"_s, u"MediaType=Transparency"_s},
       "Two-sided printing is not possible on Transparency.",
       "Turn off two-sided",
       "MediaType=Transparency"},
      {{u"MediaType=Transparency"_s, u"Duplex=DuplexNoTumble"_s},
       "Two-sided printing is not possible on Transparency.",
       "Set Paper type to Plain",
       "Duplex=DuplexNoTumble"},
      {{u"MediaType=Thick"_s, u"OutputBin=FaceDown"_s},
       R"(Output tray "Face down" is not possible with Paper type "Heavyweight".)",
       "Set Paper type to Plain",
       "OutputBin=FaceDown"},
  };
  for (const auto& [chosen, text, remedy, travels] : cases) {
    const Queue open = queue("more", "");
    JobOptions options;
    options.openFor(open);
    for (const QString& choice : chosen)
      choose(options, choice);
    const std::optional<OptionConflict> conflict = conflictOf(options);
    EXPECT_EQ(conflict ? conflict->text : QString(), QLatin1String(text));
    EXPECT_EQ(conflict ? conflict->remedy : QString(), QLatin1String(remedy));
    if (conflict) options.set(JobOptions::Source::Chosen, conflict->changes);
    EXPECT_EQ(options.travelling(), parseJobOptions(QString::fromLatin1(travels)));
  }
}

}  // namespace
}  // namespace kesto::test
