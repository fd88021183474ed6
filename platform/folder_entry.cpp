#include "platform/folder_entry.h"

namespace kesto {
namespace {

constexpr QLatin1String name("name");
constexpr QLatin1String password("password");
constexpr QLatin1String dir("dir");
constexpr QLatin1String add("add");

}  // namespace

QJsonObject jsonOf(const FolderEntry& folder) {
  return {{name, folder.name}, {password, folder.password}, {dir, folder.dir}, {add, folder.add}};
}

FolderEntry folderOf(const QJsonObject& object) {
  return {.name = object.value(name).toString(),
          .password = object.value(password).toBool(),
          .dir = object.value(dir).toBool(),
          .add = object.value(add).toBool()};
}

}  // namespace kesto
