// The settings and the page setup of a portal client under GTK's keys: what the dialog starts with, and what
// the client gets back. docs/formats/print-channel.md explains who carries out which setting.
#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QString>

namespace kesto {

/// Paper as page setups name it; lengths in millimetres.
struct PortalPaper {
  QString ppdName;      ///< The choice of the PPD's PageSize, as in "A5".
  QString name;         ///< The standard self-describing name, such as "iso_a5"; empty when unknown.
  QString displayName;  ///< For the user; when empty, the PPD's name is used.
  double width = 0;
  double height = 0;
  double marginTop = 0;
  double marginBottom = 0;
  double marginLeft = 0;
  double marginRight = 0;
};

/// Which pages of the document the client is to draw.
enum class PortalPages { All, Current, Selection, Ranges };
/// Which of the pages are printed.
enum class PortalPageSet { All, Even, Odd };
/// On which sides of the sheets.
enum class PortalDuplex { Simplex, LongEdge, ShortEdge };

/// What is chosen for a print. The client carries out the first group, the print system the second.
struct PortalChoice {
  PortalPaper paper;
  bool isLandscape = false;
  PortalPages pages = PortalPages::All;
  QString pageRanges;  ///< Counted from 1, as in "1-3,7,9-"; only for `Ranges`.

  int copies = 1;
  bool isCollated = true;
  bool isReversed = false;
  int numberUp = 1;
  QString numberUpLayout = QStringLiteral("lrtb");
  double scale = 100;  ///< In per cent.
  PortalPageSet pageSet = PortalPageSet::All;
  PortalDuplex duplex = PortalDuplex::Simplex;
  QString printer;  ///< The queue's name; empty when none is named.
};

/// What the client asks for, with which the dialog starts. Missing or meaningless values become the default.
PortalChoice choiceAskedFor(const QJsonObject& settings, const QJsonObject& pageSetup);

/// The client's settings with the choice put in. What the print system does is neutral, so that nothing is
/// done twice; the pages per sheet and their order are kept under keys of ours as well; the output format is
/// PDF; `output-uri` and our own keys are dropped; unknown keys pass. Invalid ranges become all pages.
QJsonObject settingsToReturn(const QJsonObject& settings, const PortalChoice& choice);

/// The page setup with the paper, its margins and the orientation of the choice put in. Without a paper in
/// the choice the client's own stays.
QJsonObject pageSetupToReturn(const QJsonObject& pageSetup, const PortalChoice& choice);

/// The settings without those that may contain an entry of the user's: our own print settings, and the print
/// system's passwords and accounts. A client may save what it gets.
QJsonObject withoutPrivateKeys(const QJsonObject& settings);

}  // namespace kesto
