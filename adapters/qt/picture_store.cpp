#include "adapters/qt/picture_store.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

#include "adapters/qt/qt_text.h"

Picture_Store::Picture_Store(std::string_view directory) : directory_(To_Qt(directory)) {}

QPixmap Picture_Store::Get(const Picture& picture, double pixel_ratio) {
  const QString name = To_Qt(picture.name);
  const QString key = name + u'@' + QString::number(pixel_ratio);
  const auto found = ready_.constFind(key);
  if (found != ready_.constEnd()) return *found;
  return *ready_.insert(key, name.isEmpty() ? QPixmap() : Draw(name, pixel_ratio));
}

QPixmap Picture_Store::Draw(const QString& name, double pixel_ratio) const {
  const QString path = directory_ + u'/' + name + QStringLiteral(".svg");
  QSvgRenderer renderer;
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly) || !renderer.load(file.readAll())) {
    std::fprintf(stderr, "melvor: cannot read the picture %s\n", qPrintable(path));
    return {};
  }
  const QSize natural = renderer.defaultSize();
  QPixmap pixmap((QSizeF(natural) * pixel_ratio).toSize());
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  renderer.render(&painter, QRectF(QPointF(), pixmap.size()));
  painter.end();
  pixmap.setDevicePixelRatio(pixel_ratio);
  return pixmap;
}
