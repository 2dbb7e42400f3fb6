#include "adapters/qt/fonts.h"

#include <QFontDatabase>
#include <cerrno>

#include "adapters/qt/qt_text.h"

bool Fonts::Add(std::string_view host_path) {
  if (added_.contains(host_path)) return true;
  const int number = QFontDatabase::addApplicationFont(To_Qt(host_path));
  if (number < 0) return false;
  added_.emplace(host_path, number);
  return true;
}

int Fonts::Remove(std::string_view host_path) {
  const auto found = added_.find(host_path);
  if (found == added_.end()) return ENOENT;
  if (!QFontDatabase::removeApplicationFont(found->second)) return EBUSY;
  added_.erase(found);
  return 0;
}
