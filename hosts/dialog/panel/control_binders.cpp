#include "hosts/dialog/panel/control_binders.h"

#include <QtCore/QEvent>
#include <QtCore/QPointer>
#include <QtCore/QScopedValueRollback>
#include <QtCore/QTimer>
#include <QtGui/QIcon>
#include <QtGui/QPainter>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QProgressBar>

#include "hosts/dialog/panel/field_binder.h"
#include "hosts/dialog/panel/panel_groups.h"
#include "hosts/dialog/widgets/plain_text.h"
#include "hosts/dialog/widgets/tab_order.h"
#include "panel/model/button.h"
#include "panel/model/pop_up.h"
#include "panel/model/radio_matrix.h"
#include "panel/model/simple_controls.h"
#include "panel/model/text_field.h"
#include "platform/shown_text.h"

namespace kesto {
namespace {

// Shows the control's state on the widget, now and after each change.
template <class Show>
void follow(Control& control, QWidget& widget, Show show) {
  QObject::connect(&control, &Control::changed, &widget, show);
  show();
}

QIcon iconOf(const std::optional<Image>& off, const std::optional<Image>& on) {
  QIcon icon;
  if (off) icon.addFile(off->path, {}, QIcon::Normal, QIcon::Off);
  if (on) icon.addFile(on->path, {}, QIcon::Normal, QIcon::On);
  return icon;
}

// Shows the shapes of an icon's images in the colour of the button's text, so that they are visible in every
// theme.
class IconTint : public QObject {
 public:
  IconTint(QAbstractButton& button, QIcon shapes)
      : QObject(&button), m_button(button), m_shapes(std::move(shapes)) {
    button.installEventFilter(this);
    tint();
  }

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::PaletteChange) tint();
    return false;
  }

 private:
  void tint() {
    QIcon icon;
    for (const QIcon::State state : {QIcon::Off, QIcon::On}) {
      for (const qreal ratio : {1.0, 2.0, 3.0}) {
        icon.addPixmap(tinted(state, ratio, QPalette::Active), QIcon::Normal, state);
        icon.addPixmap(tinted(state, ratio, QPalette::Disabled), QIcon::Disabled, state);
      }
    }
    m_button.setIcon(icon);
  }

  QPixmap tinted(QIcon::State state, qreal ratio, QPalette::ColorGroup group) const {
    QPixmap pixmap = m_shapes.pixmap(m_button.iconSize(), ratio, QIcon::Normal, state);
    QPainter painter(&pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), m_button.palette().color(group, QPalette::ButtonText));
    return pixmap;
  }

  QAbstractButton& m_button;
  QIcon m_shapes;
};

void dressHoldButton(const Button& control, QAbstractButton& widget) {
  widget.setFocusPolicy(Qt::StrongFocus);
  const int points = control.image() ? control.image()->points : Image().points;
  widget.setIconSize(QSize(points, points));
  // A control without images keeps those of the form.
  new IconTint(widget, control.image() ? iconOf(control.image(), control.alternateImage()) : widget.icon());
}

void showButton(const Button& control, QAbstractButton& widget) {
  if (control.type() != Button::Type::HoldButton) setPlainText(widget, control.title());
  widget.setEnabled(control.isEnabled());
  widget.setChecked(control.state() != 0);
}

// The action can run the event loop, where the user may press again or close the panel.
void press(Button& control, QAbstractButton& widget) {
  const QPointer<Button> isAlive(&control);
  const QPointer<QAbstractButton> button(&widget);
  const bool hadFocus = widget.hasFocus();
  widget.setEnabled(false);
  const QWidget* leftTo = widget.window()->focusWidget();
  (void)control.click();  // a disabled control cannot be clicked
  if (!isAlive || !button) return;
  showButton(control, widget);
  if (hadFocus && widget.window()->focusWidget() == leftTo) widget.setFocus(Qt::OtherFocusReason);
}

// Assistive technology changes a widget without a click. So the state decides: when it differs from the
// control's, the user has operated the widget.
void toggle(Button& control, QAbstractButton& widget) {
  if (widget.isChecked() == (control.state() != 0)) return;
  (void)control.click();
  showButton(control, widget);  // also undoes what the control refuses
}

void bindButton(Button& control, QAbstractButton& widget) {
  if (control.type() == Button::Type::HoldButton) dressHoldButton(control, widget);
  follow(control, widget, [&control, &widget] { showButton(control, widget); });
  if (control.type() == Button::Type::PushButton) {
    QObject::connect(&widget, &QAbstractButton::clicked, &control,
                     [&control, &widget] { press(control, widget); });
  } else {
    QObject::connect(&widget, &QAbstractButton::toggled, &control,
                     [&control, &widget] { toggle(control, widget); });
  }
}

// A choice among several. A widget reports a choice by a change of its state, and in addition by a click or a
// key. Only the latter shows that the user has chosen the current choice again. Both together count as one
// choice.
class ChoiceBinder : public QObject {
 public:
  explicit ChoiceBinder(QObject* parent) : QObject(parent) { m_taken.setSingleShot(true); }

 protected:
  // The widget's state differs from the control's.
  void takeChange(const Outcome& chosen) {
    m_taken.start(0);
    if (!chosen) show();
  }
  // Whether a click counts as a separate choice.
  bool isNewChoice() {
    const bool isTaken = m_taken.isActive();
    m_taken.stop();
    return !isTaken;
  }
  virtual void show() = 0;

 private:
  QTimer m_taken;  // runs until one operation of the user is complete
};

class CellBinder final : public ChoiceBinder {
 public:
  CellBinder(RadioCell& cell, QAbstractButton& widget)
      : ChoiceBinder(&widget), m_cell(cell), m_widget(widget) {
    enterAtChosen(widget);
    follow(cell, widget, [this] { show(); });
    connect(&widget, &QAbstractButton::toggled, &cell, [this](bool isOn) {
      if (isOn && m_cell.state() == 0) takeChange(m_cell.matrix()->choose(m_cell.row()));
    });
    connect(&widget, &QAbstractButton::clicked, &cell, [this] {
      if (isNewChoice()) (void)m_cell.matrix()->choose(m_cell.row());
    });
  }

 protected:
  void show() override {
    setPlainText(m_widget, m_cell.title());
    m_widget.setEnabled(m_cell.isEnabled());
    const RadioCell* chosen = m_cell.matrix()->selectedCell();
    if (chosen == nullptr) return;
    auto* button = m_widget.parentWidget()->findChild<QAbstractButton*>(chosen->objectName());
    if (button != nullptr) button->setChecked(true);
  }

 private:
  RadioCell& m_cell;
  QAbstractButton& m_widget;
};

void bindCell(RadioCell& cell, QAbstractButton& widget) {
  new CellBinder(cell, widget);  // owned by the widget
}

void fillItems(QComboBox& widget, const std::vector<PopUpItem>& items) {
  auto model = std::make_unique<QStandardItemModel>(0, 1);
  for (const PopUpItem& item : items) {
    auto row = std::make_unique<QStandardItem>(shownText(item.title));
    if (item.image) row->setIcon(QIcon(item.image->path));
    if (item.separator) {
      row->setData(QStringLiteral("separator"), Qt::AccessibleDescriptionRole);
      row->setFlags({});
    }
    model->appendRow(row.release());
  }
  model->setParent(&widget);
  widget.setModel(model.release());  // the widget deletes the previous one
}

class PopUpBinder final : public ChoiceBinder {
 public:
  PopUpBinder(PopUp& control, QComboBox& widget)
      : ChoiceBinder(&widget), m_control(control), m_widget(widget) {
    // A fixed width, because measuring a list of thousands of names repeatedly would cost too much.
    widget.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    widget.setMinimumContentsLength(16);
    follow(control, widget, [this] { show(); });
    connect(&widget, &QComboBox::currentIndexChanged, &control, [this](int index) {
      if (!m_isShowing && index != m_control.selectedIndex()) takeChange(m_control.choose(index));
    });
    connect(&widget, &QComboBox::activated, &control, [this](int index) {
      if (isNewChoice() && !m_control.choose(index)) show();
    });
  }

 protected:
  void show() override {
    const QScopedValueRollback showing(m_isShowing, true);
    if (m_shown != m_control.items()) {
      m_shown = m_control.items();
      fillItems(m_widget, m_shown);
    }
    m_widget.setCurrentIndex(m_control.selectedIndex());
    m_widget.setEnabled(m_control.isEnabled());
  }

 private:
  PopUp& m_control;
  QComboBox& m_widget;
  std::vector<PopUpItem> m_shown;
  bool m_isShowing = false;
};

void bindPopUp(PopUp& control, QComboBox& widget) {
  new PopUpBinder(control, widget);  // owned by the widget
}

void bindLabel(TextField& control, QLabel& widget) {
  follow(control, widget, [&control, &widget] {
    const QString& text = control.stringValue();
    setPlainText(widget, text.endsWith(u':') ? withColon(withoutColon(text)) : text);
    // The theme's disabled colours serve as gray.
    widget.setEnabled(control.textColor() != TextField::Color::Gray);
  });
}

void bindTabs(TabView& control, PanelPages& widget) {
  follow(control, widget, [&control, &widget] {
    widget.setTitles(control.labels());
    widget.turnTo(control.selectedTab());
  });
  QObject::connect(&widget, &PanelPages::entered, &control, &TabView::selectTab);
}

void bindProgress(ProgressIndicator& control, QProgressBar& widget) {
  QSizePolicy policy = widget.sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget.setSizePolicy(policy);
  follow(control, widget, [&control, &widget] { widget.setVisible(!control.isHidden()); });
}

void bindBox(Box& control, PanelGroup& widget) {
  follow(control, widget, [&control, &widget] { widget.setTitle(control.title()); });
}

void bindText(TextField& control, QWidget& widget) {
  if (auto* label = qobject_cast<QLabel*>(&widget)) bindLabel(control, *label);
  if (auto* line = qobject_cast<QLineEdit*>(&widget)) bindField(control, *line);
}

// Tries one pair of control class and widget class.
template <class ControlClass, class WidgetClass>
bool tryBind(Control& control, QWidget& widget, void (*bind)(ControlClass&, WidgetClass&)) {
  auto* suitedControl = qobject_cast<ControlClass*>(&control);
  auto* suitedWidget = qobject_cast<WidgetClass*>(&widget);
  if (suitedControl == nullptr || suitedWidget == nullptr) return false;
  bind(*suitedControl, *suitedWidget);
  return true;
}

}  // namespace

bool bindControl(Control& control, QWidget& widget) {
  return tryBind(control, widget, bindButton) || tryBind(control, widget, bindCell) ||
         tryBind(control, widget, bindPopUp) || tryBind(control, widget, bindTabs) ||
         tryBind(control, widget, bindProgress) || tryBind(control, widget, bindBox) ||
         tryBind(control, widget, bindText) || qobject_cast<RadioMatrix*>(&control) != nullptr;
}

}  // namespace kesto
