#include "adapters/qt/qt_text.h"

#include <QTextDocument>
#include <algorithm>

QString To_Qt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string From_Qt(const QString& text) { return text.toStdString(); }

int Units_Of(const QString& text, int characters) {
  int units = 0;
  for (int counted = 0; counted < characters && units < text.size(); ++counted) {
    units += text.at(units).isHighSurrogate() && units + 1 < text.size() ? 2 : 1;
  }
  return units;
}

int Characters_Of(const QString& text, int units) {
  const auto end = text.begin() + std::min<qsizetype>(units, text.size());
  return static_cast<int>(
      std::count_if(text.begin(), end, [](QChar unit) { return !unit.isLowSurrogate(); }));
}

QString With_Line_Feeds(std::string_view text) {
  QString lines = To_Qt(text);
  lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  lines.replace(QChar(u'\r'), QChar(u'\n'));
  return lines;
}

QString As_Plain_Tip(std::string_view text) {
  const QString plain = To_Qt(text);
  return Qt::mightBeRichText(plain) ? plain.toHtmlEscaped() : plain;
}
