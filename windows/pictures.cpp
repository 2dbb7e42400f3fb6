#include "windows/pictures.h"

#include <array>

#include "platform/convert.h"

namespace {

template <std::size_t count>
Picture Entry(const std::array<Picture, count>& store, int index) {
  return store[static_cast<std::size_t>(Checked_Index(index, static_cast<int>(count)))];
}

constexpr std::array<Picture, 11> Buttons_Store{{{"buttons-0"},
                                                 {"buttons-1"},
                                                 {"buttons-2"},
                                                 {"buttons-3"},
                                                 {"buttons-4"},
                                                 {"buttons-5"},
                                                 {"buttons-6"},
                                                 {"buttons-7"},
                                                 {"buttons-8"},
                                                 {"buttons-9"},
                                                 {"buttons-10"}}};
constexpr std::array<Picture, 7> LED_Store{
    {{"led-0"}, {"led-1"}, {"led-2"}, {"led-3"}, {"led-4"}, {"led-5"}, {"led-6"}}};
constexpr std::array<Picture, 4> CB_Store{{{"cb-pics-0"}, {"cb-pics-1"}, {"cb-pics-2"}, {"cb-pics-3"}}};
constexpr std::array<Picture, 4> OB_Store{{{"ob-pics-0"}, {"ob-pics-1"}, {"ob-pics-2"}, {"ob-pics-3"}}};
constexpr std::array<Picture, 4> Seq_Keys_Store{
    {{"seq-keys-0"}, {"seq-keys-1"}, {"seq-keys-2"}, {"seq-keys-3"}}};

}  // namespace

Picture Buttons(int index) { return Entry(Buttons_Store, index); }
Picture LED(int index) { return Entry(LED_Store, index); }
Picture CB_Pics(int index) { return Entry(CB_Store, index); }
Picture OB_Pics(int index) { return Entry(OB_Store, index); }
Picture Seq_Keys_Pics(int index) { return Entry(Seq_Keys_Store, index); }
