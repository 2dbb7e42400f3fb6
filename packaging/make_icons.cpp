// Draws the application's icon in one size: make_icons PICTURE.svg SIZE FILE.png
// Desktops that cannot draw the picture itself take these.

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

int main(int argc, char** argv) {
  if (argc != 4) return 2;
  QSvgRenderer renderer;
  const int size = QString::fromLocal8Bit(argv[2]).toInt();
  QImage image(size, size, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  if (size <= 0 || !renderer.load(QString::fromLocal8Bit(argv[1]))) {
    std::fprintf(stderr, "make_icons: cannot draw %s in size %s\n", argv[1], argv[2]);
    return 1;
  }
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  renderer.render(&painter);
  painter.end();
  if (image.save(QString::fromLocal8Bit(argv[3]))) return 0;
  std::fprintf(stderr, "make_icons: cannot write %s\n", argv[3]);
  return 1;
}
