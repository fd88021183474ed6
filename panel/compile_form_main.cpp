// kesto-compile-form: compiles a form for the bundle.
// usage: kesto-compile-form FORM.ui COMPILED
#include <QtCore/QFile>
#include <cstdio>

#include "panel/form.h"

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  QFile form(QFile::decodeName(argv[1]));
  QFile compiled(QFile::decodeName(argv[2]));
  kesto::FormWidget root;
  if (!form.open(QIODevice::ReadOnly)) return 1;
  const QByteArray ui = form.readAll();
  if (const kesto::Outcome read = kesto::readForm(ui, &root); !read) {
    std::fprintf(stderr, "%s: %s\n", argv[1], qUtf8Printable(read.reason()));
    return 1;
  }
  const QByteArray bytes = kesto::compiledForm(ui, root);
  return compiled.open(QIODevice::WriteOnly) && compiled.write(bytes) == bytes.size() && compiled.flush() ? 0
                                                                                                          : 1;
}
