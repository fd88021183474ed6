// The settings and the page setup of a client of the portal, in the keys that GTK gives them: what the dialog
// starts from, and what the client gets back. docs/formats/print-channel.md tells who carries out what.
#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QString>

namespace kesto {

/// Paper as page setups name it; lengths in millimetres.
struct PortalPaper {
  QString ppdName;      ///< The choice of the PPD's PageSize, as in "A5".
  QString name;         ///< The standard's self-describing name, as in "iso_a5"; empty when not known.
  QString displayName;  ///< As a user reads it; empty stands for the PPD's name.
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

/// What is chosen for a print. The client carries out its first group, the print system the second one.
struct PortalChoice {
  PortalPaper paper;
  bool isLandscape = false;
  PortalPages pages = PortalPages::All;
  QString pageRanges;  ///< From 1 on, as in "1-3,7,9-"; only for `Ranges`.

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

/// What the dialog starts from: what the client asks for. Values that are missing or no sense are the
/// default.
PortalChoice choiceAskedFor(const QJsonObject& settings, const QJsonObject& pageSetup);

/// The client's settings with the choice put in: what the print system does is neutral, so that nothing is
/// done twice; a PDF is asked for; `output-uri` and keys of ours are dropped, unknown keys pass. Ranges that
/// are none become all pages.
QJsonObject settingsToReturn(const QJsonObject& settings, const PortalChoice& choice);

/// The page setup with the paper, its margins and the orientation of the choice put in. Without a paper in
/// the choice the client's own stays.
QJsonObject pageSetupToReturn(const QJsonObject& pageSetup, const PortalChoice& choice);

/// The settings without those that may carry an entry of the user's: print settings of ours and the print
/// system's passwords and accounts. A client may save what it gets.
QJsonObject withoutPrivateKeys(const QJsonObject& settings);

}  // namespace kesto
