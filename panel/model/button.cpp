#include "panel/model/button.h"

namespace kesto {

Button::Button(Type type, const QString& name, PanelView* view) : Control(name, view), m_type(type) {}

QString Button::kind() const {
  switch (m_type) {
    case Type::CheckBox:
      return QStringLiteral("checkBox");
    case Type::HoldButton:
      return QStringLiteral("holdButton");
    case Type::PushButton:
      break;
  }
  return QStringLiteral("pushButton");
}

Outcome Button::click() {
  if (!m_enabled) return Outcome::failed(objectName() + QStringLiteral(" is disabled"));
  if (m_type != Type::PushButton) setState(m_state == 0 ? 1 : 0);
  Q_EMIT actionSent(this);
  return Outcome::done();
}

QVariant Button::imageName() const {
  return nameOfImage(m_image);
}

QVariant Button::alternateImageName() const {
  return nameOfImage(m_alternateImage);
}

QVariant nameOfImage(const std::optional<Image>& image) {
  return image ? QVariant(image->name) : QVariant::fromValue(nullptr);
}

}  // namespace kesto
