#include <random>

#include "support/availability.h"
#include "support/test_panel.h"

namespace kesto {
namespace {

using namespace test;

// Fills a panel as users and folders do, within what its filters let in.
class RandomPanel {
 public:
  RandomPanel(TestPanel& panel, unsigned seed, const QString& letters)
      : m_panel(panel), m_letters(letters), m_random(seed) {}

  void fill() {
    const PanelView& view = m_panel.view();
    chooseByUser(u"retentionCheckBox"_s);
    chooseByUser(u"suspendMatrix=%1"_s.arg(below(3)));
    chooseByUser(u"folderSelectionMatrix=%1"_s.arg(below(3)));
    chooseByUser(u"folderSelectionPopup=%1"_s.arg(below(2)));
    chooseByUser(u"authenticationMatrix=%1"_s.arg(below(2)));
    for (const auto& [name, digits] : {std::pair(u"suspendKey"_s, 8), std::pair(u"folderPassword"_s, 8),
                                       std::pair(u"userNumber"_s, 5), std::pair(u"accountNumber"_s, 5)}) {
      auto& text = field(view, name);
      if (text.isEditable() && below(4) != 0) text.setStringValue(textOf(u"0123456789"_s, digits));
    }
    field(view, "userName").setStringValue(textOf(m_letters, 16));
    field(view, "jobName").setStringValue(textOf(m_letters, 40));
    field(view, "loginName").setStringValue(textOf(m_letters, 20));
    for (const QString& name : heldNames)
      chooseByUser(name + u"Button"_s);
  }

 private:
  int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }
  void chooseByUser(const QString& operation) {
    const Outcome outcome = below(2) == 0 ? Outcome::done() : operate(m_panel.view(), operation);
    EXPECT_TRUE(outcome || outcome.reason().contains(u"disabled"));
  }
  QString textOf(const QString& letters, int longest) {
    QString text;
    for (int length = 1 + below(longest); length > 0; --length)
      text += letters[below(static_cast<int>(letters.size()))];
    return text;
  }

  TestPanel& m_panel;
  const QString& m_letters;
  std::mt19937 m_random;
};

// A hold comes back only with its key: not the password's, and not that of an empty or unwritten field.
QString expectedMask(const TestPanel& panel) {
  const PanelView& view = *panel.controller->panelView();
  int mask = 0;
  int bit = 1;
  for (const QString& name : heldNames) {
    const bool isHeld = button(view, name + u"Button"_s).state() == 1;
    const bool isEmpty = field(view, name).stringValue().isEmpty();
    const bool isUnwritten = name == u"suspendKey" && valueOf(view, "retentionCheckBox") == u"0";
    const bool returns =
        name == u"loginName" || name == u"folderName" || (name != u"password" && !isEmpty && !isUnwritten);
    if (isHeld && returns) mask |= bit;
    bit *= 2;
  }
  return QString::number(mask);
}

TEST(RoundTrip, WhatWasWrittenIsReadAndWrittenAgain) {
  using enum TextEncoding;
  const std::array<std::pair<TextEncoding, QString>, 9> systems{{
      {MacRoman, u"aZ9 \"\n\u00E9\u2020"_s},
      {MacJapanese, u"a\\~\uFF76\u6F22\u8868\x1A\x1C\x7F"_s},
      {MacTraditionalChinese, u"a\u6F22\u5B57"_s},
      {MacKorean, u"a\uD55C\uAE00"_s},
      {MacGreek, u"a\u03A9\u03BB"_s},
      {MacCyrillic, u"a\u0416\u044F"_s},
      {MacSimplifiedChinese, u"a\u6C49\u5B57"_s},
      {MacCentralEurope, u"a\u0141\u0151"_s},
      {MacTurkish, u"a\u011E\u0131"_s},
  }};
  for (const auto& [encoding, letters] : systems) {
    for (unsigned seed = 1; seed <= 15; ++seed) {
      SCOPED_TRACE(testing::Message() << "encoding " << systemEncodingCode(encoding) << " seed " << seed);
      TestPlatform platform;
      platform.encoding = encoding;
      TestPanel first(platform);
      first.restore();
      RandomPanel(first, seed, letters).fill();
      first.save();
      TestPanel second(platform);
      second.host.settings = first.host.settings;
      second.restore();
      second.save();
      first.host.put("holdButton", expectedMask(first));
      ASSERT_EQ(second.host.all(), first.host.all());
      EXPECT_TRUE(asciiOfText(second.host.all(), 100000));
    }
  }
}

}  // namespace
}  // namespace kesto
