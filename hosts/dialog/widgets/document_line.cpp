#include "hosts/dialog/widgets/document_line.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QPushButton>
#include <utility>

#include "hosts/dialog/widgets/accessible.h"
#include "hosts/dialog/widgets/mnemonics.h"
#include "hosts/dialog/widgets/plain_text.h"
#include "hosts/dialog/widgets/wrapped_label.h"

namespace kesto {

DocumentLine::DocumentLine(QWidget* parent)
    : QWidget(parent), m_text(new WrappedLabel(this)), m_choose(new QPushButton(this)) {
  m_text->setObjectName(QStringLiteral("documentName"));
  m_text->setTextFormat(Qt::PlainText);
  setPlainText(*m_choose, tr("Choose…"));
  m_choose->setAccessibleName(tr("Choose a document"));
  exceptFromMnemonics(*m_choose);
  m_choose->setAutoDefault(false);
  auto* line = new QHBoxLayout(this);
  line->setContentsMargins({});
  line->addWidget(m_text, 1);
  line->addWidget(m_choose);
  connect(m_choose, &QPushButton::clicked, this, &DocumentLine::choiceAsked);
}

void DocumentLine::show(const QString& name, const QStringList& faults) {
  constexpr qsizetype mostLines = 4;
  QStringList lines = faults;
  if (!name.isEmpty()) lines.prepend(name);
  m_text->setToolTip(tipOf(lines.join(u'\n')));
  if (lines.size() > mostLines) lines = lines.first(mostLines) << QStringLiteral("…");
  m_text->setText(lines.join(u'\n'));
  if (faults != std::exchange(m_faults, faults) && !faults.isEmpty()) announce(*m_text, faults.join(u'\n'));
}

void DocumentLine::offerChoice(bool isOffered) {
  m_choose->setVisible(isOffered);
}

}  // namespace kesto
