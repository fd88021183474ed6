// The drawn pages of a document.
#pragma once

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtGui/QImage>
#include <utility>

#include "hosts/dialog/preview/page_program.h"

namespace kesto {

/// A file and a page in it; both count from 0.
using PageNumber = std::pair<int, int>;

/// A page at the size at which it is wanted: of its longer side, in pixels.
struct WantedPage {
  PageNumber number;
  int pixels = 0;

  bool operator==(const WantedPage&) const = default;
};

/// Draws pages one at a time, each by a program of its own, so that a hostile file harms nobody. Those that
/// were looked at last are kept.
class PageImages : public QObject {
  Q_OBJECT

 public:
  PageImages();

  /// The paths of the files. Forgets all pages.
  void setFiles(const QStringList& files);
  /// Draws these, in this order; no others any more.
  void draw(const QList<WantedPage>& pages);
  /// Whether these are drawn, or cannot be.
  bool areThere(const QList<WantedPage>& pages) const;
  /// A page in the last size in which it was drawn; null when it is not there.
  QImage image(const PageNumber& number) const;
  /// Why there is no page, in a sentence; null when nothing is known against it.
  QString fault(const PageNumber& number) const { return m_faults.value(number); }

 Q_SIGNALS:
  /// A page is there, or a fault.
  void drawn();

 private:
  struct File {
    QString path;
    bool isPdf = false;
  };
  struct Drawing {
    WantedPage page;
    QImage image;
  };

  const Drawing* find(const PageNumber& number) const;
  bool isThere(const WantedPage& page) const;
  void drawNext();
  void take(PageProgram::End end);
  void dropOld();
  QString faultOf(PageProgram::End end, bool isPdf) const;

  QList<File> m_files;
  QHash<PageNumber, QString> m_faults;
  QList<WantedPage> m_asked;
  QList<WantedPage> m_wanted;  // of these, what is still to be drawn
  QList<Drawing> m_drawings;   // the oldest first
  PageProgram m_program;
};

}  // namespace kesto
