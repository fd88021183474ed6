#include "hosts/dialog/pdf_saving.h"

#include <QtCore/QFile>
#include <QtCore/QSaveFile>

#include "hosts/dialog/widgets/plain_text.h"
#include "hosts/session/private_copy.h"
#include "platform/shown_text.h"

namespace kesto {
namespace {

QString nameOf(const QSaveFile& file) {
  return QFile::decodeName(pathOf(file.handle()));
}

// "1-3,7,5-2" of the pages that follow each other in one file; `*at` goes on to those of the next.
QString rangesAt(const QList<PageNumber>& pages, qsizetype* at) {
  QStringList ranges;
  const int file = pages[*at].first;
  const auto isNext = [&](qsizetype place, int step) {
    return place < pages.size() && pages[place] == PageNumber(file, pages[place - 1].second + step);
  };
  while (*at < pages.size() && pages[*at].first == file) {
    const qsizetype first = *at;
    const int step = isNext(first + 1, -1) ? -1 : 1;
    while (isNext(++*at, step)) {
    }
    const QString page = QString::number(pages[first].second + 1);
    ranges.append(*at - first == 1 ? page : QStringLiteral("%1-%2").arg(page).arg(pages[*at - 1].second + 1));
  }
  return ranges.join(u',');
}

}  // namespace

PdfSaving::PdfSaving() {
  connect(&m_program, &PageProgram::ended, this, &PdfSaving::takeEnd);
}

PdfSaving::~PdfSaving() {
  m_writer.waitForDone();
}

void PdfSaving::save(const PageSequence& pages, const QString& target) {
  m_target = std::make_unique<QSaveFile>(target);
  if (pages.pages.isEmpty() || !m_target->open(QIODevice::WriteOnly)) {
    const QString reason = pages.pages.isEmpty() ? tr("No pages are selected.") : m_target->errorString();
    QMetaObject::invokeMethod(
        this, [this, reason] { fail(reason); }, Qt::QueuedConnection);
    return;
  }
  // The first file also gives the new one its title and outline.
  const auto pathOfPage = [&](qsizetype at) { return pages.files.at(pages.pages[at].first); };
  QStringList arguments{QStringLiteral("--warning-exit-0"), pathOfPage(0), QStringLiteral("--pages")};
  for (qsizetype at = 0; at < pages.pages.size();) {
    arguments << pathOfPage(at);
    arguments << rangesAt(pages.pages, &at);
  }
  arguments << QStringLiteral("--") << QStringLiteral("-");
  m_program.start({.program = QStringLiteral("qpdf"), .arguments = arguments, .output = nameOf(*m_target)});
}

void PdfSaving::takeEnd(PageProgram::End end) {
  if (end == PageProgram::End::Missing) return fail(tr("Install qpdf to save PDF files."));
  if (end == PageProgram::End::Late) return fail(tr("Saving takes too long."));
  if (end == PageProgram::End::Failed) {
    const QString text = QString::fromUtf8(m_program.errors()).trimmed().section(u'\n', -1);
    return fail(shownText(text.startsWith(u"qpdf: ") ? text.sliced(6) : text));
  }
  if (!isWholePdfFile(nameOf(*m_target))) return fail(tr("There is not enough space."));
  commit();
}

// Waits for the disk.
void PdfSaving::commit() {
  m_writer.start([this] {
    const bool isDone = m_target->commit();
    const auto end = [this, isDone] {
      if (!isDone) return fail(m_target->errorString());
      m_target.reset();
      Q_EMIT saved();
    };
    QMetaObject::invokeMethod(this, end, Qt::QueuedConnection);
  });
}

void PdfSaving::stop() {
  if (!m_program.isRunning()) return;
  m_program.stop();
  fail(tr("Stopped."));
}

void PdfSaving::fail(const QString& reason) {
  const QString name = m_target->fileName();
  m_target->cancelWriting();
  m_target.reset();
  Q_EMIT failed(tr("%1 cannot be saved. %2").arg(shownText(name), asSentence(reason)));
}

}  // namespace kesto
