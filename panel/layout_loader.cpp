#include "panel/layout_loader.h"

#include <QtCore/QSet>
#include <algorithm>

#include "panel/form.h"
#include "panel/localized.h"
#include "panel/outlets.h"

namespace kesto {
namespace {

// The value of that name; a value without a text when there is none.
const FormValue& valueOf(const std::vector<FormValue>& values, QStringView name) {
  static const FormValue none;
  const auto found = std::ranges::find_if(values, [&](const FormValue& value) { return value.name == name; });
  return found == values.end() ? none : *found;
}

const QString& property(const FormWidget& widget, QStringView name) {
  return valueOf(widget.properties, name).text;
}

// Creates the controls for a form's widgets up to the first fault.
class ControlMaker {
 public:
  ControlMaker(PanelView& view, const Bundle& bundle) : m_view(view), m_bundle(bundle) {}

  Outcome make(const FormWidget& root) {
    makeControls(root);
    return m_fault.isNull() ? Outcome::done() : Outcome::failed(m_fault);
  }

 private:
  void fail(const FormWidget& widget, const QString& fault) {
    if (m_fault.isNull()) m_fault = QStringLiteral("line %1: %2").arg(widget.line).arg(fault);
  }

  void takeName(const FormWidget& widget) {
    if (m_names.contains(widget.name)) {
      fail(widget, QStringLiteral("a second control is called %1").arg(widget.name));
    }
    m_names.insert(widget.name);
  }

  // The text of a control as the user sees it, translated unless the panel does that.
  QString visibleText(const FormValue& value) const {
    return value.isLeftToPanel ? value.text : localizedStringValue(m_bundle, value.text);
  }
  QString visibleText(const FormWidget& widget, QStringView name) const {
    return visibleText(valueOf(widget.properties, name));
  }

  void makeControls(const FormWidget& widget) {
    Control* control = makeControl(widget);
    if (control != nullptr) {
      takeName(widget);
      control->setAction(property(widget, u"action"));
    }
    for (const FormWidget& child : widget.children) {
      if (!m_fault.isNull()) return;
      makeControls(child);
    }
  }

  Control* makeControl(const FormWidget& widget) {
    const QString& type = widget.type;
    if (type == u"QCheckBox") return makeButton(widget, Button::Type::CheckBox);
    if (type == u"QToolButton") return makeButton(widget, Button::Type::HoldButton);
    if (type == u"QPushButton") return makeButton(widget, Button::Type::PushButton);
    if (type == u"QLabel" || type == u"QLineEdit") return makeText(widget, type == u"QLabel");
    if (type == u"QComboBox") return makePopUp(widget);
    if (type == u"QTabWidget") return makeTabView(widget);
    if (type == u"QProgressBar") return new ProgressIndicator(widget.name, &m_view);
    if (type == u"QGroupBox") {
      auto* box = new Box(widget.name, &m_view);
      box->setTitle(visibleText(widget, u"title"));
      return box;
    }
    if (type == u"QWidget") return makeMatrix(widget);
    return nullptr;  // the matrix creates its own cells
  }

  Control* makeButton(const FormWidget& widget, Button::Type type) {
    auto* button = new Button(type, widget.name, &m_view);
    if (type != Button::Type::HoldButton) button->setTitle(visibleText(widget, u"text"));
    button->setState(property(widget, u"checked") == u"true" ? 1 : 0);
    return button;
  }

  Control* makeText(const FormWidget& widget, bool isLabel) {
    const int tag = property(widget, u"tag").toInt();
    if (isLabel != (tag == 0)) {
      fail(widget, QStringLiteral("%1: labels have tag 0, text fields another").arg(widget.name));
    }
    auto* field = new TextField(widget.name, &m_view, tag);
    field->setStringValue(visibleText(widget, u"text"));
    return field;
  }

  Control* makePopUp(const FormWidget& widget) {
    auto* popUp = new PopUp(widget.name, &m_view);
    std::vector<PopUpItem> items;
    for (const FormWidget& item : widget.items) {
      items.push_back({.title = visibleText(item, u"text"), .image = {}});
    }
    popUp->setItems(std::move(items));
    popUp->selectItemAtIndex(property(widget, u"currentIndex").toInt());
    return popUp;
  }

  Control* makeTabView(const FormWidget& widget) {
    QStringList labels;
    for (const FormWidget& page : widget.children) {
      labels.append(visibleText(valueOf(page.attributes, u"title")));
    }
    auto* tabView = new TabView(widget.name, &m_view);
    tabView->setLabels(labels);
    return tabView;
  }

  Control* makeMatrix(const FormWidget& widget) {
    RadioMatrix* matrix = nullptr;
    for (const FormWidget& child : widget.children) {
      if (child.type != u"QRadioButton") continue;
      if (matrix == nullptr) matrix = new RadioMatrix(widget.name, &m_view);
      takeName(child);
      const RadioCell* cell = matrix->addCell(child.name, visibleText(child, u"text"));
      if (property(child, u"checked") == u"true") matrix->selectRow(cell->row());
    }
    if (matrix == nullptr) return nullptr;  // a page or a mere container
    if (matrix->selectedRow() < 0) fail(widget, QStringLiteral("no row of %1 is chosen").arg(widget.name));
    matrix->setRules(property(widget, u"rules").split(u' ', Qt::SkipEmptyParts));
    return matrix;
  }

  PanelView& m_view;
  const Bundle& m_bundle;
  QSet<QString> m_names;
  QString m_fault;
};

}  // namespace

Outcome loadLayout(const QByteArray& ui, const Bundle& bundle, std::unique_ptr<PanelView>* view,
                   const QByteArray& compiled) {
  view->reset();
  FormWidget root;
  if (!readCompiledForm(compiled, ui, &root)) {
    if (Outcome read = readForm(ui, &root); !read) return read;
  }
  auto loaded = std::make_unique<PanelView>();
  if (Outcome made = ControlMaker(*loaded, bundle).make(root); !made) return made;
  loaded->setForm(ui);
  *view = std::move(loaded);
  return Outcome::done();
}

}  // namespace kesto
