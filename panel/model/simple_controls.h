// Group boxes, tab pages and the progress indicator.
#pragma once

#include "panel/model/control.h"
#include "platform/export.h"

namespace kesto {

/// A frame with a title.
class KESTO_EXPORT Box : public Control {
  Q_OBJECT
  Q_PROPERTY(QString title READ title NOTIFY changed)

 public:
  using Control::Control;
  QString kind() const override { return QStringLiteral("box"); }
  const QString& title() const { return m_title; }
  void setTitle(const QString& title) { assign(m_title, title); }

 private:
  QString m_title;
};

/// Pages with labels, of which one is shown.
class KESTO_EXPORT TabView : public Control {
  Q_OBJECT
  Q_PROPERTY(QStringList tabs READ labels NOTIFY changed)
  Q_PROPERTY(int selectedTab READ selectedTab NOTIFY changed)

 public:
  using Control::Control;
  QString kind() const override { return QStringLiteral("tabView"); }
  const QStringList& labels() const { return m_labels; }
  void setLabels(const QStringList& labels) { assign(m_labels, labels); }
  int selectedTab() const { return m_selectedTab; }
  void selectTab(int index) { assign(m_selectedTab, index); }

 private:
  QStringList m_labels;
  int m_selectedTab = 0;
};

/// A spinning indicator for work of unknown duration.
class KESTO_EXPORT ProgressIndicator : public Control {
  Q_OBJECT

 public:
  using Control::Control;
  QString kind() const override { return QStringLiteral("progress"); }
};

}  // namespace kesto
