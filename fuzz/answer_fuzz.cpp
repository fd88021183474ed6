// The input is the printer's answer.
#include "folders/folder_answer.h"
#include "folders/folder_popup.h"
#include "fuzz/targets.h"
#include "panel/model/panel_view.h"
#include "tests/support/bench_host.h"

namespace kesto::fuzz {

void runAnswer(const QByteArray& input) {
  std::optional<FolderAnswer> answer = readFolderAnswer(input);
  if (!answer) return;
  require(answer->isList || answer->folders.empty(), "an answer without a list has no folders");

  bench::BenchHost host;
  PanelState state(host);
  PanelView view;
  EnablingRules rules(state);
  ControlActions actions(state, rules);
  FolderPopup popup(state, actions);
  auto* items = new PopUp(QStringLiteral("folderSelectionPopup"), &view);
  items->setItems({{.title = QStringLiteral("a"), .image = {}}, {.title = QStringLiteral("b"), .image = {}}});
  state.outlets.folderSelectionPopup = items;
  state.folderList = std::move(answer->folders);
  popup.makeFolderPopup();
  require(popup.offersAllFolders(), "every folder is offered");
  for (const FolderEntry& folder : *state.folderList) {
    require(!folder.name.isEmpty(), "every folder has a name");
    const int item = popup.SearchSameFolderName(folder.name);
    require(item >= firstFolderItem && item < static_cast<int>(items->items().size()), "a folder is found");
  }
  items->selectItemAtIndex(static_cast<int>(items->items().size()) - 1);
  popup.makeFolderPopup();
}

}  // namespace kesto::fuzz
