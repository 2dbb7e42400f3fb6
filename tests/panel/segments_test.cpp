#include "panel/segments.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>

#include "platform/directories.h"
#include "support/program.h"
#include "windows/editor_window.h"

namespace {

using Point = std::pair<int, int>;

// The little of a TrueType file that straight-lined glyphs need.
struct Font {
  explicit Font(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    bytes.assign(std::istreambuf_iterator<char>(file), {});
  }

  int U16(std::size_t place) const {
    return static_cast<std::uint8_t>(bytes.at(place)) * 256 + static_cast<std::uint8_t>(bytes.at(place + 1));
  }
  int S16(std::size_t place) const { return static_cast<std::int16_t>(U16(place)); }
  std::size_t U32(std::size_t place) const {
    return static_cast<std::size_t>(U16(place)) * 65536 + static_cast<std::size_t>(U16(place + 2));
  }

  std::size_t Table(const std::string& tag) const {
    for (int row = 0; row < U16(4); ++row) {
      const std::size_t place = 12 + static_cast<std::size_t>(row) * 16;
      if (bytes.compare(place, 4, tag) == 0) return U32(place + 8);
    }
    ADD_FAILURE() << "no table " << tag;
    return 0;
  }

  // By the first character map, which has one run of codes.
  int Glyph_Of(int code) const {
    const std::size_t map = Table("cmap") + U32(Table("cmap") + 8);
    const auto double_count = static_cast<std::size_t>(U16(map + 6));
    const std::size_t starts = map + 16 + double_count;
    if (U16(map) != 4 || code < U16(starts) || code > U16(map + 14)) return 0;
    return (code + U16(starts + double_count)) % 65536;
  }

  std::vector<std::vector<Point>> Outlines(int glyph) const {
    const std::size_t loca = Table("loca") + static_cast<std::size_t>(glyph) * 4;
    const std::size_t data = Table("glyf") + U32(loca);
    if (U32(loca) == U32(loca + 4)) return {};
    const int count = U16(data);
    std::size_t place = data + 10 + static_cast<std::size_t>(count) * 2;
    const auto points = static_cast<std::size_t>(U16(place - 2)) + 1;
    place += 2 + static_cast<std::size_t>(U16(place));
    for (std::size_t point = 0; point < points; ++point)
      EXPECT_EQ(bytes.at(place + point), 1) << "words, on the line";
    const std::size_t xs = place + points;
    const std::size_t ys = xs + 2 * points;
    std::vector<std::vector<Point>> outlines(1);
    Point at{0, 0};
    for (std::size_t point = 0; point < points; ++point) {
      at = {at.first + S16(xs + 2 * point), at.second + S16(ys + 2 * point)};
      outlines.back().push_back(at);
      const std::size_t end = data + 10 + (outlines.size() - 1) * 2;
      if (point + 1 < points && static_cast<int>(point) == U16(end)) outlines.emplace_back();
    }
    return outlines;
  }

  std::string bytes;
};

// Whether the outlines fill the place, by the crossings of a ray to the right.
bool Filled(const std::vector<std::vector<Point>>& outlines, int x, int y) {
  bool inside = false;
  for (const auto& outline : outlines) {
    for (std::size_t point = 0; point < outline.size(); ++point) {
      const auto [x1, y1] = outline[point];
      const auto [x2, y2] = outline[(point + 1) % outline.size()];
      if (x1 == x2 && x1 > x && y > std::min(y1, y2) && y < std::max(y1, y2)) inside = !inside;
    }
  }
  return inside;
}

const std::string Assets =
    std::filesystem::path(__FILE__).parent_path().parent_path().parent_path() / "assets";

TEST(Segments, The_Font_Lights_The_Cells_Of_The_Tables) {
  const Font font(Assets + "/MELVOR.FNT");
  const int units = font.U16(font.Table("head") + 18) / Segment_Rows;  // of a cell
  ASSERT_EQ(units * Segment_Rows, font.U16(font.Table("head") + 18));
  const auto expect_cells = [&](int glyph, std::string_view segments, const std::string& name) {
    const auto outlines = font.Outlines(glyph);
    for (int row = 0; row < Segment_Rows; ++row) {
      std::string lit, want;
      for (int column = 0; column < Segment_Columns; ++column) {
        const int x = (column + 1) * units + units / 2;
        const int y = (Segment_Rows - row) * units - units / 2;
        lit += Filled(outlines, x, y) ? '#' : '.';
        const char cell = Segment_Grid[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
        want += segments.find(cell) == std::string_view::npos ? '.' : '#';
      }
      EXPECT_EQ(lit, want) << name << ", row " << row;
    }
  };
  for (int code = 32; code < 127; ++code) {
    const int glyph = font.Glyph_Of(code);
    EXPECT_GT(glyph, 0) << code;
    expect_cells(glyph, Segment_Chars[static_cast<std::size_t>(code)],
                 std::string(1, static_cast<char>(code)));
  }
  expect_cells(0, Segment_Chars[0], "unknown");
  EXPECT_EQ(Segment_Chars['K'], "BEGIL");
  EXPECT_EQ(Segment_Chars['a'], "") << "no lower case";
}

struct Font_Test : Program {
  Font_Test() {
    Directories_Set("C:\\.config\\melvor", "/data/melvor");
    Font_Loaded = Flag_False;
    Editor.Tone_Name.font_face = std::string();
  }
};

TEST_F(Font_Test, The_Display_Gets_The_Font_And_Gives_It_Back) {
  Pics_Build_Segments();
  EXPECT_EQ(desktop.fonts, std::vector<std::string>{"/data/melvor/MELVOR.FNT"});
  EXPECT_EQ(Editor.Tone_Name.font_face(), "MELVOR");
  EXPECT_EQ(Font_Loaded, Flag_True);
  desktop.remove_font_error = 5;
  desktop.Expect_Box(Answer::Ok, "Error 5");
  Pics_Release_Font();
  EXPECT_TRUE(desktop.fonts.empty());
  EXPECT_EQ(desktop.boxes.back().style, Box_Stop);
  Pics_Release_Font();
  EXPECT_EQ(desktop.boxes.size(), 1u) << "once is enough";
}

TEST_F(Font_Test, Without_The_Font_The_Display_Keeps_Its_Face) {
  desktop.fonts_load = false;
  desktop.Expect_Box(Answer::Ok,
                     "Error: Could not load font C:\\.config\\melvor\\MELVOR.FNT\nUsing default font.");
  Pics_Build_Segments();
  EXPECT_EQ(desktop.boxes.back().style, Box_Stop);
  EXPECT_EQ(desktop.boxes.back().title, "MELVOR");
  EXPECT_EQ(Editor.Tone_Name.font_face(), "");
  EXPECT_EQ(Font_Loaded, Flag_False);
  Pics_Release_Font();
}

}  // namespace
