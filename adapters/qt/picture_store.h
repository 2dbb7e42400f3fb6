// The pictures of the windows: read from SVG files once, drawn sharp for the pixel ratio of the screen, and
// kept ready. User-interface thread only.
#pragma once

#include <QHash>
#include <QPixmap>
#include <QString>
#include <string_view>

#include "platform/picture.h"

struct Picture_Store {
  // directory: host path.
  explicit Picture_Store(std::string_view directory);

  // The picture at its natural size in pixels at ratio 1. Nothing (a null pixmap) for the empty name, and for
  // a file that is missing or broken, which is told once on standard error.
  QPixmap Get(const Picture& picture, double pixel_ratio);

 private:
  QPixmap Draw(const QString& name, double pixel_ratio) const;

  QString directory_;
  QHash<QString, QPixmap> ready_;
};
