// The drawn pages of a document.
#pragma once

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QThreadPool>
#include <QtGui/QImage>
#include <utility>

#include "hosts/dialog/preview/document_examiner.h"

namespace kesto {

/// A file and a page in it; both count from 0.
using PageNumber = std::pair<int, int>;

/// Pages of several files, one after the other.
struct PageSequence {
  QStringList files;  ///< Their paths.
  QList<PageNumber> pages;
};

/// A page at the size at which it is wanted: of its longer side, in pixels.
struct WantedPage {
  PageNumber number;
  int pixels = 0;

  bool operator==(const WantedPage&) const = default;
};

/// Draws pages one at a time, each by a program of its own, so that a hostile file harms nobody, and takes
/// what the program has drawn in another thread. Those that were looked at last are kept, up to a limit.
class PageImages : public QObject {
  Q_OBJECT

 public:
  /// How many bytes of pages are kept beside those that are shown. Whoever asks for pages ahead asks for no
  /// more.
  static constexpr qsizetype mostKept = 16 << 20;

  PageImages();
  ~PageImages() override;

  /// Forgets all pages and files.
  void clear();
  /// Takes the files as far as they are known. The pages of those that were known already stay.
  void setFiles(const QList<ExaminedFile>& files);
  /// Draws these, in this order; no others any more.
  void draw(const QList<WantedPage>& pages);
  /// Whether these are drawn, or cannot be.
  bool areThere(const QList<WantedPage>& pages) const;
  /// A page in the last size in which it was drawn; null when it is not there.
  QImage image(const PageNumber& number, bool isGray = false) const;
  /// Why there is no page, in a sentence; null when nothing is known against it.
  QString fault(const PageNumber& number) const;

 Q_SIGNALS:
  /// A page is there, or a fault.
  void drawn();

 private:
  struct Drawing {
    WantedPage page;
    QImage image;
    mutable QImage gray;  // made when it is first wanted
  };

  const Drawing* find(const PageNumber& number) const;
  bool isThere(const WantedPage& page) const;
  PageProgram::Work workOf(const WantedPage& page) const;
  void drawNext();
  void take(PageProgram::End end);
  void keep(const WantedPage& page, const QImage& image, PageProgram::End end);
  void dropOld();
  QString faultOf(PageProgram::End end, const ExaminedFile& file) const;

  QList<ExaminedFile> m_files;
  QHash<PageNumber, QString> m_faults;
  QList<WantedPage> m_asked;
  QList<WantedPage> m_wanted;   // of these, what is still to be drawn
  QList<WantedPage> m_reading;  // and what is drawn but not yet read
  QList<Drawing> m_drawings;    // the oldest first
  int m_generation = 0;         // to recognise what belongs to files that were forgotten
  PageProgram m_program;
  QThreadPool m_reader;
};

}  // namespace kesto
