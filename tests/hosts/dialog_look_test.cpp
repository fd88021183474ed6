// How the dialog looks in a language and at a scale: every text fits and every widget is named. Pictures of
// all pages are saved in the build's folder "screenshots".
#include <QtCore/QDir>
#include <QtCore/QRegularExpression>
#include <QtGui/QAccessible>
#include <QtGui/QKeySequence>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QStyle>

#include "hosts/dialog/preview/preview.h"
#include "hosts/dialog/print_dialog.h"
#include "hosts/dialog/translations.h"
#include "hosts/dialog/widgets/accent_color.h"
#include "hosts/dialog/widgets/plain_text.h"
#include "hosts/dialog/widgets/queue_chooser.h"
#include "hosts/dialog/widgets/section.h"
#include "hosts/dialog/widgets/section_column.h"
#include "tests/support/dialog_support.h"

namespace kesto::test {
namespace {

// The inner parts of a combined widget are not checked.
bool isPart(const QWidget& widget) {
  const QWidget* parent = widget.parentWidget();
  if (parent == nullptr) return false;
  for (const char* whole : {"QComboBox", "QAbstractSpinBox", "QLineEdit", "QTextEdit"}) {
    if (parent->inherits(whole)) return true;
  }
  return isPart(*parent);
}

QString nameOf(const QWidget& widget) {
  return widget.objectName().isEmpty() ? QString::fromLatin1(widget.metaObject()->className())
                                       : widget.objectName();
}

QList<QWidget*> seenIn(const QWidget& window) {
  QList<QWidget*> seen = window.findChildren<QWidget*>();
  seen.removeIf([](const QWidget* widget) { return !widget->isVisible() || isPart(*widget); });
  return seen;
}

bool showsWholeText(const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    if (label->text().isEmpty()) return true;
    return label->wordWrap() ? label->heightForWidth(label->width()) <= label->height()
                             : label->sizeHint().width() <= label->width();
  }
  if (const auto* list = qobject_cast<const QComboBox*>(&widget)) {
    const int arrow = list->style()->pixelMetric(QStyle::PM_MenuButtonIndicator) + 12;
    return list->fontMetrics().horizontalAdvance(list->currentText()) + arrow <= list->width();
  }
  const auto* button = qobject_cast<const QAbstractButton*>(&widget);
  if (button != nullptr && !button->text().isEmpty())
    return widget.sizeHint().width() <= widget.width() && widget.fontMetrics().height() <= widget.height();
  return true;
}

void expectInPlace(const QWidget& window) {
  const QList<QWidget*> seen = seenIn(window);
  for (const QWidget* widget : seen) {
    const QWidget* parent = widget->parentWidget();
    const bool scrolls = parent->parentWidget() != nullptr && parent->parentWidget()->inherits("QScrollArea");
    EXPECT_TRUE(scrolls || parent->rect().contains(widget->geometry()))
        << nameOf(*widget) << " leaves " << nameOf(*parent);
    EXPECT_TRUE(showsWholeText(*widget)) << nameOf(*widget) << " does not show its whole text";
    for (const QWidget* other : seen) {
      if (other <= widget || other->parentWidget() != parent) continue;
      EXPECT_FALSE(other->geometry().intersects(widget->geometry()))
          << nameOf(*widget) << " and " << nameOf(*other) << " overlap";
    }
  }
}

void expectOneColon(const QWidget& window) {
  for (const auto* label : window.findChildren<QLabel*>()) {
    const QString text = label->text();
    EXPECT_TRUE(!text.endsWith(u':') || text == withColon(withoutColon(text))) << text;
  }
}

// What a screen reader says of a field: its label, else its own name. That of a list may be what is chosen.
QString spokenName(const QAccessibleInterface& field) {
  const auto labels = field.relations(QAccessible::Label);
  if (!labels.isEmpty()) return withoutColon(labels.first().first->text(QAccessible::Name));
  return field.role() == QAccessible::ComboBox ? QString() : field.text(QAccessible::Name);
}

// What assistive technology finds below an interface: whatever takes the focus has a name without its key
// letter, radio buttons have a named group, and a label leads to a field of its name.
void expectAccessible(QAccessibleInterface& each, const QString& group, QSet<QObject*>* found) {
  using Role = QAccessible::Role;
  if (each.state().invisible) return;
  found->insert(each.object());
  const auto* widget = qobject_cast<QWidget*>(each.object());
  const QString name = spokenName(each);
  const std::string where = widget == nullptr ? "an item" : nameOf(*widget).toStdString();
  const bool needsName = each.state().focusable && each.role() != Role::Client;
  EXPECT_TRUE(!needsName || !name.isEmpty()) << where << " has no name";
  const bool isText = each.role() == Role::StaticText;
  static const QRegularExpression letter(u"&|\\([A-Z]\\)$"_s);
  EXPECT_TRUE(isText || !name.contains(letter)) << name;
  EXPECT_TRUE(each.role() != Role::RadioButton || !group.isEmpty()) << name << " is in no group";
  const auto* label = qobject_cast<const QLabel*>(widget);
  if (label != nullptr && label->buddy() != nullptr) {
    EXPECT_EQ(spokenName(*QAccessible::queryAccessibleInterface(label->buddy())),
              withoutColon(plainText(*label)));
  }
  constexpr std::array whole{Role::ComboBox, Role::SpinBox, Role::EditableText};
  if (std::ranges::find(whole, each.role()) != whole.end()) return;
  for (int child = 0; child < each.childCount(); ++child)
    expectAccessible(*each.child(child), each.role() == Role::Grouping ? name : group, found);
}

void expectAccessible(QWidget& window) {
  QSet<QObject*> found;
  expectAccessible(*QAccessible::queryAccessibleInterface(&window), {}, &found);
  for (QWidget* widget : seenIn(window)) {
    EXPECT_TRUE(widget->focusPolicy() == Qt::NoFocus || found.contains(widget)) << nameOf(*widget);
  }
}

// Sections share letters.
QString scopeOf(const QWidget& widget) {
  for (const QWidget* each = &widget; each != nullptr; each = each->parentWidget()) {
    const auto* section = qobject_cast<const Section*>(each->parentWidget());
    if (section != nullptr && section->content() == each) return section->objectName();
  }
  return {};
}

void expectMnemonics(const QWidget& window) {
  QMap<QString, QString> owners;
  const auto take = [&](const QWidget& widget, const QString& text) {
    const QString letter = QKeySequence::mnemonic(text).toString();
    if (letter.isEmpty()) return;
    const QString key = letter + scopeOf(widget);
    EXPECT_FALSE(owners.contains(key)) << text << " and " << owners.value(key) << " share " << key;
    owners.insert(key, text);
  };
  for (const QWidget* widget : seenIn(window)) {
    if (const auto* label = qobject_cast<const QLabel*>(widget);
        label != nullptr && label->buddy() != nullptr)
      take(*widget, label->text());
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget);
        button != nullptr && !button->text().isEmpty())
      take(*widget, button->text());
  }
}

// The labels before the fields of all sections: their last characters and positions.
void expectAligned(const QWidget& column) {
  QSet<int> ends;
  for (const auto* label : column.findChildren<QLabel*>()) {
    if (!label->isVisible() || label->buddy() == nullptr) continue;
    ends.insert(label->mapTo(&column, QPoint(label->width(), 0)).x());
    const bool hasColon = label->text().endsWith(QLocale().language() == QLocale::French ? u"\u00A0:" : u":");
    EXPECT_TRUE(hasColon) << label->text();
  }
  EXPECT_LE(ends.size(), 1);
}

QPalette darkPalette() {
  QPalette palette(QColor(50, 50, 52), QColor(43, 43, 45));
  palette.setColor(QPalette::Base, QColor(32, 32, 34));
  return palette;
}

QPalette highContrastPalette() {
  QPalette palette(Qt::white, Qt::black, Qt::white, Qt::gray, Qt::white, Qt::white, Qt::white, Qt::black,
                   Qt::black);
  palette.setColor(QPalette::Highlight, Qt::yellow);
  palette.setColor(QPalette::HighlightedText, Qt::black);
  return palette;
}

// Of texts that stand back: dimmed ones, and those in empty fields.
void expectContrast(const QPalette& palette) {
  const auto light = [&](QPalette::ColorGroup group, QPalette::ColorRole role) {
    const auto linear = [](double part) { return std::pow(part, 2.2); };
    const QColor color = palette.color(group, role);
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
  };
  const auto contrast = [&](QPalette::ColorGroup group, QPalette::ColorRole one, QPalette::ColorRole other) {
    const double first = light(group, one);
    const double second = light(group, other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
  };
  EXPECT_GT(contrast(QPalette::Active, QPalette::PlaceholderText, QPalette::Base), 4.4);
  EXPECT_GT(contrast(QPalette::Disabled, QPalette::WindowText, QPalette::Window), 2.9);
  EXPECT_GT(contrast(QPalette::Disabled, QPalette::Text, QPalette::Base), 2.9);
  EXPECT_GT(contrast(QPalette::Disabled, QPalette::ButtonText, QPalette::Button), 2.9);
}

Queue demoQueue() {
  Queue queue{.id = u"Office_MFP"_s, .deviceUri = u"socket://192.0.2.20:9100"_s};
  EXPECT_TRUE(openPpdFile(demoPpd(), &queue.ppd));
  return queue;
}

class DialogLook : public testing::Test {
 protected:
  DialogLook() {
    qputenv("XDG_CONFIG_HOME", m_home.path().toUtf8());
    installTranslations();
    makeTextsLegible();
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * m_percent / 100);
    QApplication::setFont(font);
    QDir().mkpath(m_pictures);
    m_document.openFiles({KESTO_TEST_DATA "/../../demo/quarterly-report.pdf"});
    PrintOptions options;
    options.server.address = u"127.0.0.1:9"_s;
    m_dialog.emplace(options, m_document);
    m_dialog->show();
    const auto* retry = m_dialog->findChild<QWidget*>(u"retry"_s);
    EXPECT_TRUE(DialogUser::waitUntil([&] { return retry->isVisible(); }, u"the missing server"_s));
    const QString fault = m_dialog->findChild<QLabel*>(u"printerState"_s)->text();
    m_dialog->takeQueue(demoQueue());
    EXPECT_TRUE(DialogUser::waitUntil([this] { return m_dialog->isQueueReady(); }, u"the queue"_s));
    useWidgets(*m_dialog,
               "retentionCheckBox customFolderRadioButton suspendKeyEditText=2468 userNumberRadioButton "
               "userNumberEditText=42 userNumberButton");
    m_dialog->findChild<QWidget*>(u"chasingArrow"_s)->show();
    m_dialog->findChild<QueueChooser*>()->showState(fault, StateIcon::Kind::Fault);
  }

  void expectPage(const char* theme, const QString& page) {
    SCOPED_TRACE(page.toStdString() + ' ' + theme);
    expectContrast(m_dialog->palette());
    EXPECT_TRUE(DialogUser::waitUntil([this] { return m_dialog->preview().isSettled(); }, u"the preview"_s));
    expectInPlace(*m_dialog);
    expectOneColon(*m_dialog);
    expectAccessible(*m_dialog);
    expectMnemonics(*m_dialog);
    expectAligned(*m_dialog->findChild<SectionColumn*>());
    const QString file = u"%1/%2-%3-%4-%5.png"_s.arg(m_pictures, QLocale().name())
                             .arg(m_percent)
                             .arg(QLatin1String(theme), page);
    EXPECT_TRUE(m_dialog->grab().save(file)) << file;
  }

  // A pass of the event loop lays out what the one before has filled, until nothing moves any more.
  void layOut() {
    QList<QRect> places;
    int still = 0;
    const auto isSettled = [&] {
      QList<QRect> now;
      for (const QWidget* widget : seenIn(*m_dialog))
        now.append(widget->geometry());
      still = now == std::exchange(places, now) ? still + 1 : 0;
      return still == 10;
    };
    EXPECT_TRUE(DialogUser::waitUntil(isSettled, u"the layout"_s));
  }

  // Each section alone, and all at once on a small screen.
  void expectPages(const char* theme) {
    const QList<Section*>& sections = m_dialog->findChild<SectionColumn*>()->sections();
    const QSize size = m_dialog->size();
    for (const Section* shown : sections) {
      for (Section* section : sections)
        section->setOpen(section == shown);
      layOut();
      expectPage(theme, shown->objectName());
    }
    for (Section* section : sections)
      section->setOpen(true);
    for (const QSize screen : {QSize(960, 540), QSize(1024, 600)}) {
      const QSize largest = screen * m_percent / 100;
      m_dialog->resize(largest);
      layOut();
      EXPECT_EQ(m_dialog->size().boundedTo(largest), m_dialog->size()) << screen.width();
      expectPage(theme, u"small-%1"_s.arg(screen.width()));
    }
    m_dialog->resize(size);
  }

  QTemporaryDir m_home;
  int m_percent = qEnvironmentVariableIsSet("KESTO_TEST_PERCENT")
                      ? qEnvironmentVariableIntValue("KESTO_TEST_PERCENT")
                      : 100;
  QString m_pictures = QCoreApplication::applicationDirPath() + u"/../screenshots"_s;
  Document m_document;
  std::optional<PrintDialog> m_dialog;
};

TEST_F(DialogLook, EveryTextFitsInAllThemes) {
  if (QLocale().language() != QLocale::English) {
    EXPECT_NE(m_dialog->windowTitle(), u"Print"_s) << "not translated";
    EXPECT_FALSE(m_dialog->findChild<QLabel*>(u"printerState"_s)->text().contains(u"print server"));
  }
  expectPages("light");
  if (QLocale().language() != QLocale::English) return;  // colors do not move what is laid out
  QApplication::setPalette(darkPalette());
  expectPages("dark");
  QApplication::setPalette(highContrastPalette());
  expectPages("contrast");
}

}  // namespace
}  // namespace kesto::test
