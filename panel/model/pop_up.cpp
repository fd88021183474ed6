#include "panel/model/pop_up.h"

#include "panel/model/button.h"

namespace kesto {

void PopUp::setItems(std::vector<PopUpItem> items) {
  if (items == m_items) return;
  m_items = std::move(items);
  m_selectedIndex = std::min(m_selectedIndex, static_cast<int>(m_items.size()) - 1);
  Q_EMIT changed();
}

bool PopUp::isChoice(int index) const {
  return index >= 0 && index < static_cast<int>(m_items.size()) &&
         !m_items[static_cast<std::size_t>(index)].separator;
}

void PopUp::selectItemAtIndex(int index) {
  if (isChoice(index)) assign(m_selectedIndex, index);
}

const PopUpItem* PopUp::selectedItem() const {
  return m_selectedIndex < 0 ? nullptr : &m_items[static_cast<std::size_t>(m_selectedIndex)];
}

Outcome PopUp::choose(int index) {
  if (!m_enabled) return Outcome::failed(objectName() + QStringLiteral(" is disabled"));
  if (!isChoice(index)) {
    return Outcome::failed(QStringLiteral("%1 has no item %2 to choose").arg(objectName()).arg(index));
  }
  selectItemAtIndex(index);
  Q_EMIT actionSent(this);
  return Outcome::done();
}

QVariantList PopUp::itemList() const {
  QVariantList list;
  list.reserve(static_cast<qsizetype>(m_items.size()));
  for (const PopUpItem& item : m_items) {
    list.append(QVariantMap{{QStringLiteral("title"), item.title},
                            {QStringLiteral("image"), nameOfImage(item.image)},
                            {QStringLiteral("separator"), item.separator}});
  }
  return list;
}

}  // namespace kesto
