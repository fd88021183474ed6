// kesto-draw-image SIZE: writes the image on standard input to standard output as PNG, upright and at most
// SIZE pixels wide and high; its text "points" has the width and height that the image asks for. The preview
// runs it, so that an image costs no more than the preview allows.
#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtGui/QImageReader>
#include <cstdio>
#include <iostream>

namespace kesto {
namespace {

// Without a resolution of its own an image has this one, as in the print system.
constexpr double usualResolution = 200;

// In points; `image` is read from an image of `size` pixels.
QSizeF wantedSize(const QImage& image, QSize size) {
  constexpr double perInch = 0.0254;
  static const QImage without(1, 1, QImage::Format_Mono);
  if ((size.width() > size.height()) != (image.width() > image.height())) size.transpose();
  const auto points = [](int pixels, int perMetre, int unknown) {
    return pixels * 72 / (perMetre == unknown ? usualResolution : perMetre * perInch);
  };
  return {points(size.width(), image.dotsPerMeterX(), without.dotsPerMeterX()),
          points(size.height(), image.dotsPerMeterY(), without.dotsPerMeterY())};
}

QImage scaledDown(const QImage& image, int most) {
  if (image.width() <= most && image.height() <= most) return image;
  return image.convertToFormat(QImage::Format_RGB32)
      .scaled(most, most, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

QImage readImage(QIODevice& device, int most) {
  QImageReader reader(&device);
  reader.setAutoTransform(true);
  const QSize size = reader.size();
  const bool isLarge = size.width() > most || size.height() > most;
  // Images of two colours lose these when they are read smaller.
  if (isLarge && reader.imageFormat() != QImage::Format_Mono)
    reader.setScaledSize(size.scaled(most, most, Qt::KeepAspectRatio));
  const QImage image = reader.read();
  const QSizeF points = wantedSize(image, size.isValid() ? size : image.size());
  QImage result = scaledDown(image, most);
  if (!result.isNull())
    result.setText(QStringLiteral("points"),
                   QStringLiteral("%1 %2").arg(points.width()).arg(points.height()));
  return result;
}

int run(int most) {
  QFile input;
  QFile output;
  if (!input.open(stdin, QIODevice::ReadOnly) || !output.open(stdout, QIODevice::WriteOnly)) return 1;
  constexpr int fast = 90;
  const QImage image = readImage(input, most);
  return !image.isNull() && image.save(&output, "PNG", fast) && output.flush() ? 0 : 1;
}

}  // namespace
}  // namespace kesto

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  const int most = argc == 2 ? QByteArray(argv[1]).toInt() : 0;
  if (most <= 0) {
    std::cerr << "usage: kesto-draw-image SIZE\n";
    return 2;
  }
  return kesto::run(most);
}
