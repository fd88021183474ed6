// Check boxes, hold buttons and push buttons.
#pragma once

#include <optional>

#include "panel/model/control.h"
#include "platform/export.h"
#include "platform/outcome.h"

namespace kesto {

/// A button with a title or an image. Check boxes and hold buttons have a state, 0 off and 1 on; a hold
/// button shows `alternateImage` while it is on.
class KESTO_EXPORT Button : public Control {
  Q_OBJECT
  Q_PROPERTY(QString title READ title NOTIFY changed)
  Q_PROPERTY(bool enabled READ isEnabled NOTIFY changed)
  Q_PROPERTY(int state READ state NOTIFY changed)
  Q_PROPERTY(QVariant image READ imageName NOTIFY changed)
  Q_PROPERTY(QVariant alternateImage READ alternateImageName NOTIFY changed)

 public:
  enum class Type { CheckBox, HoldButton, PushButton };

  Button(Type type, const QString& name, PanelView* view);

  QString kind() const override;
  Type type() const { return m_type; }

  const QString& title() const { return m_title; }
  void setTitle(const QString& title) { assign(m_title, title); }

  bool isEnabled() const { return m_enabled; }
  void setEnabled(bool enabled) { assign(m_enabled, enabled); }

  int state() const { return m_state; }
  void setState(int state) { assign(m_state, state); }

  const std::optional<Image>& image() const { return m_image; }
  void setImage(const std::optional<Image>& image) { assign(m_image, image); }
  const std::optional<Image>& alternateImage() const { return m_alternateImage; }
  void setAlternateImage(const std::optional<Image>& image) { assign(m_alternateImage, image); }

  /// The user clicks: toggles the state, except of a push button, and sends the action. Fails when disabled.
  Outcome click();

 private:
  QVariant imageName() const;
  QVariant alternateImageName() const;

  Type m_type;
  QString m_title;
  bool m_enabled = true;
  int m_state = 0;
  std::optional<Image> m_image;
  std::optional<Image> m_alternateImage;
};

/// The name of an image, for hosts that do not show it; null without an image.
KESTO_EXPORT QVariant nameOfImage(const std::optional<Image>& image);

}  // namespace kesto
