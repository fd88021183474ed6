#include "folders/folder_popup.h"

#include <algorithm>

#include "panel/localized.h"

namespace kesto {
namespace {

constexpr std::size_t fixedItems = 2;

}  // namespace

void FolderPopup::makeFolderPopup() {
  PopUp* popUp = m_state.outlets.folderSelectionPopup;
  if (popUp == nullptr) return;
  const bool wasFolder = popUp->selectedIndex() >= firstFolderItem;
  const QString chosen = wasFolder ? popUp->selectedItem()->title : QString();

  std::vector<PopUpItem> items = popUp->items();
  items.resize(std::min(items.size(), fixedItems));
  for (PopUpItem& item : items) {
    item.title = localizedStringValue(*m_state.pdeBundle, item.title);
    item.image = m_state.spaceImage;
  }
  if (m_state.folderList && !m_state.folderList->empty()) {
    const Image padlock = initWithSystemIconType(*m_state.pdeBundle, typeCode("lock"));
    items.reserve(items.size() + 1 + m_state.folderList->size());
    items.push_back({.title = {}, .image = {}, .separator = true});
    for (const FolderEntry& folder : *m_state.folderList) {
      items.push_back({.title = folder.name, .image = folder.password ? padlock : m_state.spaceImage});
    }
  }
  popUp->setItems(std::move(items));
  if (wasFolder) {
    popUp->selectItemAtIndex(SearchSameFolderName(chosen));
    m_actions.folderSelectionPopUpButtonProc(popUp);
  }
}

int FolderPopup::SearchSameFolderName(const QString& name) const {
  if (name.isNull() || !m_state.folderList) return MainFolder;
  const auto& folders = *m_state.folderList;
  const auto found = std::ranges::find_if(folders, [&](const FolderEntry& folder) {
    return folder.name.compare(name, Qt::CaseInsensitive) == 0;
  });
  return found == folders.end() ? MainFolder : firstFolderItem + static_cast<int>(found - folders.begin());
}

bool FolderPopup::offersAllFolders() const {
  const PopUp* popUp = m_state.outlets.folderSelectionPopup;
  if (popUp == nullptr || !m_state.folderList || m_state.folderList->empty()) return true;
  const auto& items = popUp->items();
  if (items.size() != m_state.folderList->size() + firstFolderItem) return false;
  return std::equal(
      m_state.folderList->begin(), m_state.folderList->end(), items.begin() + firstFolderItem,
      [](const FolderEntry& folder, const PopUpItem& item) { return folder.name == item.title; });
}

}  // namespace kesto
