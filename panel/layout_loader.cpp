#include "panel/layout_loader.h"

#include <QtCore/QSet>
#include <QtXml/QDomDocument>

#include "panel/localized.h"
#include "panel/outlets.h"

namespace kesto {
namespace {

// Forms nest a dozen levels; far more is no form.
constexpr int deepestWidget = 100;

// Reads one form; the first fault ends the reading.
class FormReader {
 public:
  FormReader(PanelView& view, const Bundle& bundle) : m_view(view), m_bundle(bundle) {}

  Outcome read(const QDomElement& widget) {
    readWidget(widget, 0);
    return m_fault.isNull() ? Outcome::done() : Outcome::failed(m_fault);
  }

 private:
  void fail(const QDomElement& element, const QString& fault) {
    if (m_fault.isNull()) m_fault = QStringLiteral("line %1: %2").arg(element.lineNumber()).arg(fault);
  }

  // The value of a property or attribute; null when the widget has none of that name.
  static QDomElement valueOf(const QDomElement& widget, QLatin1String name, QLatin1String element) {
    for (QDomElement each = widget.firstChildElement(element); !each.isNull();
         each = each.nextSiblingElement(element)) {
      if (each.attribute(QStringLiteral("name")) == name) return each.firstChildElement();
    }
    return {};
  }

  static QString property(const QDomElement& widget, QLatin1String name) {
    return valueOf(widget, name, QLatin1String("property")).text();
  }

  // A text that the user sees.
  QString visibleText(const QDomElement& widget, QLatin1String name,
                      QLatin1String element = QLatin1String("property")) const {
    const QDomElement value = valueOf(widget, name, element);
    const bool isLeftToPanel = value.attribute(QStringLiteral("notr")) == u"true";
    return isLeftToPanel ? value.text() : localizedStringValue(m_bundle, value.text());
  }

  // The widgets directly in this one, whatever layouts stand between.
  static QList<QDomElement> childWidgets(const QDomElement& parent) {
    QList<QDomElement> children;
    for (QDomElement each = parent.firstChildElement(); !each.isNull(); each = each.nextSiblingElement()) {
      if (each.tagName() == u"widget") {
        children.append(each);
      } else if (each.tagName() == u"layout" || each.tagName() == u"item") {
        children.append(childWidgets(each));
      }
    }
    return children;
  }

  void readWidget(const QDomElement& widget, int depth) {
    if (depth > deepestWidget) return fail(widget, QStringLiteral("widgets nested too deep"));
    const QList<QDomElement> children = childWidgets(widget);
    Control* control = makeControl(widget, children);
    if (control != nullptr) {
      if (m_names.contains(control->objectName())) {
        return fail(widget, QStringLiteral("a second control is called %1").arg(control->objectName()));
      }
      m_names.insert(control->objectName());
      control->setAction(property(widget, QLatin1String("action")));
    }
    for (const QDomElement& child : children) {
      if (!m_fault.isNull()) return;
      readWidget(child, depth + 1);
    }
  }

  Control* makeControl(const QDomElement& widget, const QList<QDomElement>& children) {
    const QString type = widget.attribute(QStringLiteral("class"));
    const QString name = widget.attribute(QStringLiteral("name"));
    if (type == u"QCheckBox") return makeButton(widget, name, Button::Type::CheckBox);
    if (type == u"QToolButton") return makeButton(widget, name, Button::Type::HoldButton);
    if (type == u"QPushButton") return makeButton(widget, name, Button::Type::PushButton);
    if (type == u"QLabel" || type == u"QLineEdit") return makeText(widget, name, type == u"QLabel");
    if (type == u"QComboBox") return makePopUp(widget, name);
    if (type == u"QTabWidget") return makeTabView(name, children);
    if (type == u"QProgressBar") return new ProgressIndicator(name, &m_view);
    if (type == u"QGroupBox") {
      auto* box = new Box(name, &m_view);
      box->setTitle(visibleText(widget, QLatin1String("title")));
      return box;
    }
    if (type == u"QWidget") return makeMatrix(widget, name, children);
    return nullptr;  // the cells of a matrix are made with it
  }

  Control* makeButton(const QDomElement& widget, const QString& name, Button::Type type) {
    auto* button = new Button(type, name, &m_view);
    if (type != Button::Type::HoldButton) button->setTitle(visibleText(widget, QLatin1String("text")));
    button->setState(property(widget, QLatin1String("checked")) == u"true" ? 1 : 0);
    return button;
  }

  Control* makeText(const QDomElement& widget, const QString& name, bool isLabel) {
    const int tag = property(widget, QLatin1String("tag")).toInt();
    if (isLabel != (tag == 0)) {
      fail(widget, QStringLiteral("%1: labels have tag 0, text fields another").arg(name));
    }
    auto* field = new TextField(name, &m_view, tag);
    field->setStringValue(visibleText(widget, QLatin1String("text")));
    return field;
  }

  Control* makePopUp(const QDomElement& widget, const QString& name) {
    auto* popUp = new PopUp(name, &m_view);
    std::vector<PopUpItem> items;
    for (QDomElement item = widget.firstChildElement(QStringLiteral("item")); !item.isNull();
         item = item.nextSiblingElement(QStringLiteral("item"))) {
      items.push_back({.title = visibleText(item, QLatin1String("text")), .image = {}});
    }
    popUp->setItems(std::move(items));
    popUp->selectItemAtIndex(property(widget, QLatin1String("currentIndex")).toInt());
    return popUp;
  }

  Control* makeTabView(const QString& name, const QList<QDomElement>& pages) {
    QStringList labels;
    for (const QDomElement& page : pages) {
      labels.append(visibleText(page, QLatin1String("title"), QLatin1String("attribute")));
    }
    auto* tabView = new TabView(name, &m_view);
    tabView->setLabels(labels);
    return tabView;
  }

  Control* makeMatrix(const QDomElement& widget, const QString& name, const QList<QDomElement>& children) {
    RadioMatrix* matrix = nullptr;
    for (const QDomElement& child : children) {
      if (child.attribute(QStringLiteral("class")) != u"QRadioButton") continue;
      if (matrix == nullptr) matrix = new RadioMatrix(name, &m_view);
      const RadioCell* cell =
          matrix->addCell(child.attribute(QStringLiteral("name")), visibleText(child, QLatin1String("text")));
      if (property(child, QLatin1String("checked")) == u"true") matrix->selectRow(cell->row());
    }
    if (matrix == nullptr) return nullptr;  // a page or a mere container
    if (matrix->selectedRow() < 0) fail(widget, QStringLiteral("no row of %1 is chosen").arg(name));
    matrix->setRules(property(widget, QLatin1String("rules")).split(u' ', Qt::SkipEmptyParts));
    return matrix;
  }

  PanelView& m_view;
  const Bundle& m_bundle;
  QSet<QString> m_names;
  QString m_fault;
};

}  // namespace

Outcome loadLayout(const QByteArray& ui, const Bundle& bundle, std::unique_ptr<PanelView>* view) {
  view->reset();
  QDomDocument document;
  QString message;
  int line = 0;
  if (!document.setContent(ui, &message, &line)) {
    return Outcome::failed(QStringLiteral("line %1: %2").arg(line).arg(message));
  }
  const QDomElement form = document.documentElement();
  const QDomElement root = form.firstChildElement(QStringLiteral("widget"));
  if (form.tagName() != u"ui" || root.isNull()) return Outcome::failed(QStringLiteral("not a form"));
  auto loaded = std::make_unique<PanelView>();
  if (Outcome outcome = FormReader(*loaded, bundle).read(root); !outcome) return outcome;
  loaded->setForm(ui);
  *view = std::move(loaded);
  return Outcome::done();
}

}  // namespace kesto
