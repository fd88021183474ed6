#include "hosts/dialog/widgets/section.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QAccessibleWidget>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QStylePainter>
#include <QtWidgets/QVBoxLayout>

#include "hosts/dialog/widgets/accent_color.h"
#include "hosts/dialog/widgets/accessible.h"
#include "hosts/dialog/widgets/mnemonics.h"
#include "hosts/dialog/widgets/plain_text.h"
#include "platform/shown_text.h"

namespace kesto {
namespace {

constexpr int gap = 6;  // pixels between the parts of a header

// Qt's own button is checked or not, which is not what an open section is.
class AccessibleHeader : public QAccessibleWidget {
 public:
  explicit AccessibleHeader(SectionHeader* header) : QAccessibleWidget(header, QAccessible::Button) {}

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.expandable = true;
    state.expanded = header().isChecked();
    state.collapsed = !header().isChecked();
    return state;
  }
  QStringList actionNames() const override {
    return QStringList{pressAction()} + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& action) override {
    if (action != pressAction()) return QAccessibleWidget::doAction(action);
    if (header().isEnabled()) header().click();
  }

 private:
  SectionHeader& header() const { return *static_cast<SectionHeader*>(widget()); }
};

}  // namespace

SectionHeader::SectionHeader(QWidget* parent) : QAbstractButton(parent) {
  useInterface<SectionHeader, AccessibleHeader>();
  setCheckable(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  connect(this, &QAbstractButton::toggled, this, [this] {
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
  });
}

void SectionHeader::setHeadline(const QString& text, bool isChanged) {
  m_headline = shownText(text);
  m_isChanged = isChanged;
  setAccessibleDescription(m_headline);
  update();
}

QFont SectionHeader::titleFont() const {
  return boldOf(font());
}

int SectionHeader::arrowWidth() const {
  return fontMetrics().height();
}

QSize SectionHeader::sizeHint() const {
  const QFontMetrics title(titleFont());
  return {arrowWidth() + gap + title.horizontalAdvance(plainText(*this)) + gap, title.height() * 2};
}

QSize SectionHeader::minimumSizeHint() const {
  return sizeHint();
}

void SectionHeader::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  QStyleOption option;
  option.initFrom(this);
  QColor shade = palette().color(QPalette::WindowText);
  shade.setAlpha(option.state.testFlag(QStyle::State_MouseOver) ? 24 : 0);
  painter.fillRect(rect(), shade);
  shade.setAlpha(48);
  painter.fillRect(QRect(0, 0, width(), 1), shade);

  const auto place = [&](const QRect& area) { return QStyle::visualRect(layoutDirection(), rect(), area); };
  const QStyle::PrimitiveElement folded =
      layoutDirection() == Qt::RightToLeft ? QStyle::PE_IndicatorArrowLeft : QStyle::PE_IndicatorArrowRight;
  const int side = arrowWidth() * 2 / 3;
  option.rect = place(QRect((arrowWidth() - side) / 2, (height() - side) / 2, side, side));
  painter.drawPrimitive(isChecked() ? QStyle::PE_IndicatorArrowDown : folded, option);

  const bool showsKeys = style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this) != 0;
  const int flags = Qt::AlignVCenter | Qt::TextSingleLine;
  const auto alignment = [this](Qt::Alignment logical) {
    return static_cast<int>(QStyle::visualAlignment(layoutDirection(), logical));
  };
  const QRect texts(arrowWidth() + gap, 0, width() - arrowWidth() - 2 * gap, height());
  painter.setFont(titleFont());
  painter.drawItemText(
      place(texts),
      flags | alignment(Qt::AlignLeft) | (showsKeys ? Qt::TextShowMnemonic : Qt::TextHideMnemonic), palette(),
      isEnabled(), text(), QPalette::WindowText);

  const int taken = QFontMetrics(titleFont()).horizontalAdvance(plainText(*this)) + 2 * gap;
  const QRect rest = texts.adjusted(taken, 0, 0, 0);
  painter.setFont(font());
  painter.setPen(m_isChanged && isEnabled() ? accentColor(palette()) : quietColor(palette()));
  painter.drawText(place(rest), flags | alignment(Qt::AlignRight),
                   fontMetrics().elidedText(m_headline, Qt::ElideRight, rest.width()));
  if (!hasFocus()) return;
  QStyleOptionFocusRect focus;
  focus.initFrom(this);
  focus.rect = rect().adjusted(0, 2, 0, -1);
  painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}

// Qt leaves Enter to the window's default button.
void SectionHeader::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
    return QAbstractButton::keyPressEvent(event);
  click();
}

void SectionHeader::changeEvent(QEvent* event) {
  QAbstractButton::changeEvent(event);
  if (event->type() == QEvent::FontChange) updateGeometry();
}

Section::Section(const QString& name, const QString& title, Factory make, QWidget* parent)
    : QWidget(parent), m_make(std::move(make)), m_header(new SectionHeader(this)), m_body(new QVBoxLayout) {
  setObjectName(name);
  m_header->setObjectName(name + QStringLiteral("Header"));
  setTitle(title);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins({});
  column->setSpacing(0);
  column->addWidget(m_header);
  column->addLayout(m_body);
  connect(m_header, &QAbstractButton::toggled, this, &Section::unfold);
}

QString Section::title() const {
  return plainText(*m_header);
}

void Section::setTitle(const QString& title) {
  setPlainText(*m_header, title);
  m_header->setAccessibleName(title);
  nameGroup(*this, title);
}

void Section::build() {
  if (m_content != nullptr) return;
  m_content = m_make(this);
  if (m_content == nullptr) return;
  setMnemonicTexts(*m_content, {});  // sections share letters
  if (QLayout* layout = m_content->layout()) layout->setContentsMargins({});
  m_content->setVisible(isOpen());
  m_body->addWidget(m_content);
  takeMargins();
  Q_EMIT built();
}

void Section::clear() {
  if (m_content == nullptr) return;
  m_content->hide();
  m_content->deleteLater();
  m_content = nullptr;
  takeMargins();
}

void Section::unfold(bool isOpen) {
  if (isOpen) build();
  if (m_content != nullptr) {
    if (!isOpen && m_content->isAncestorOf(window()->focusWidget())) m_header->setFocus(Qt::OtherFocusReason);
    m_content->setVisible(isOpen);
    takeMargins();
  }
  Q_EMIT toggled(isOpen);
}

// All contents begin at the same place, so that their labels can end at the same one.
void Section::takeMargins() {
  const bool isShown = m_content != nullptr && isOpen();
  m_body->setContentsMargins(isShown ? QMargins(margin(), margin() / 2, margin(), margin()) : QMargins());
}

}  // namespace kesto
