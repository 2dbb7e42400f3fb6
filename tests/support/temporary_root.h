// A directory of its own that is drive C: while it lives, for tests of whatever reads and writes files.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>
#include <string>

#include "platform/drives.h"
#include "platform/runtime_error.h"

struct Temporary_Root {
  Temporary_Root() : host(Make_Directory()) { Drives_Set({{'C', host.string()}}); }
  ~Temporary_Root() { std::filesystem::remove_all(host); }
  Temporary_Root(const Temporary_Root&) = delete;
  Temporary_Root& operator=(const Temporary_Root&) = delete;

  // Names are host paths below the root.
  void Put(const std::string& name, const std::string& bytes) {
    std::ofstream file(host / name, std::ios::binary | std::ios::trunc);
    file << bytes;
    if (!file.flush()) throw std::runtime_error("cannot write " + name);
  }
  void Make(const std::string& name) { std::filesystem::create_directories(host / name); }

  // "(none)" if there is no such file.
  std::string Get(const std::string& name) const {
    std::ifstream file(host / name, std::ios::binary);
    if (!file) return "(none)";
    return {std::istreambuf_iterator<char>(file), {}};
  }
  // Everything that the directory holds, hidden names too.
  std::set<std::string> Names(const std::string& directory = ".") const {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(host / directory)) {
      names.insert(entry.path().filename().string());
    }
    return names;
  }

  const std::filesystem::path host;

 private:
  // In memory, so that the many flushes of the saves do not wait for a disk.
  static std::filesystem::path Make_Directory() {
    std::string form = std::filesystem::exists("/dev/shm") ? "/dev/shm/" : "/tmp/";
    form += "melvor-test-XXXXXX";
    if (mkdtemp(form.data()) == nullptr) throw std::runtime_error("cannot make " + form);
    return std::filesystem::canonical(form);
  }
};

// The number of the Runtime_Error that the procedure raises, 0 for none.
template <class Procedure>
int Raised(Procedure procedure) {
  try {
    procedure();
    return 0;
  } catch (const Runtime_Error& error) {
    return error.number;
  }
}
