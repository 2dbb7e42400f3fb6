#include <QDir>
#include <QFile>
#include <QPixmap>
#include <QTemporaryDir>

#include "adapters/qt/picture_store.h"
#include "desk.h"

namespace {

// A picture of 4 by 2 pixels whose left half pixel is red, the rest clear.
void Write_Picture(const QString& path) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(R"(<svg xmlns="http://www.w3.org/2000/svg" width="4" height="2">)"
             R"(<rect width="0.5" height="2" fill="#f00"/></svg>)");
}

TEST(Pictures, Are_Drawn_At_Their_Natural_Size_Sharp_At_Any_Pixel_Ratio) {
  const QTemporaryDir directory;
  Write_Picture(directory.filePath("mark.svg"));
  Picture_Store store(directory.path().toStdString());
  for (const double ratio : {1.0, 2.0}) {
    const QPixmap pixmap = store.Get(Picture{"mark"}, ratio);
    EXPECT_EQ(pixmap.deviceIndependentSize(), QSizeF(4, 2)) << ratio;
    EXPECT_EQ(pixmap.width(), 4 * ratio);
  }
  const QImage sharp = store.Get(Picture{"mark"}, 2).toImage();
  EXPECT_EQ(sharp.pixelColor(0, 1), QColor(255, 0, 0));
  EXPECT_EQ(sharp.pixelColor(1, 1).alpha(), 0);
}

TEST(Pictures, A_Missing_One_Is_Nothing_And_Told_Once) {
  const QTemporaryDir directory;
  Picture_Store store(directory.path().toStdString());
  testing::internal::CaptureStderr();
  EXPECT_TRUE(store.Get(Picture{"gone"}, 1).isNull());
  EXPECT_TRUE(store.Get(Picture{"gone"}, 1).isNull());
  EXPECT_TRUE(store.Get(Picture{}, 1).isNull());
  const std::string told = testing::internal::GetCapturedStderr();
  EXPECT_NE(told.find("gone.svg"), std::string::npos);
  EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), 1);
}

TEST_F(Desk, What_Lies_Below_Shows_Through_A_Picture_And_Around_It) {
  Write_Picture(QStringLiteral(QT_TEST_PICTURES "/mark.svg"));
  panel.own_colors = true;
  panel.back_color = Color{0, 0, 200};
  Canvas canvas(knob, "Canvas");
  canvas.Place(8, 8, 4, 4);
  canvas.back_color = Green;
  knob.picture = Picture{"mark"};
  Show_Windows();
  canvas.Paint(Picture{"mark"}, 0, 2);
  desktop.Run_Events(Event_Set::Without_Input);
  const QImage seen = Widget("PANEL").grab().toImage();
  EXPECT_EQ(seen.pixelColor(101, 50), QColor(0, 0, 200)) << "the clear part of a picture";
  EXPECT_GT(seen.pixelColor(100, 50).red(), 100);
  EXPECT_EQ(seen.pixelColor(109, 58), QColor(0, 255, 0));
  EXPECT_GT(seen.pixelColor(108, 60).red(), 100);
}

TEST_F(Desk, No_Line_Falls_Between_The_Pixels_Of_A_Scaled_Screen) {
  constexpr int count = 8;
  std::vector<std::unique_ptr<Line>> lines;
  for (int place = 0; place < count; ++place) {
    lines.push_back(std::make_unique<Line>(panel, "Line"));
    lines.back()->Set(10 + 7 * place, 10, 10 + 7 * place, 30);
    lines.back()->color = Green;
  }
  Show_Windows();
  QWidget& body = Widget("PANEL");
  for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
    QImage seen(body.size() * ratio, QImage::Format_RGB32);
    seen.setDevicePixelRatio(ratio);
    body.render(&seen);
    int runs = 0;
    const int row = static_cast<int>(20 * ratio);
    for (int x = 1; x < seen.width(); ++x) {
      const auto green = [&](int column) { return seen.pixelColor(column, row) == QColor(0, 255, 0); };
      if (green(x) && !green(x - 1)) ++runs;
    }
    EXPECT_EQ(runs, count) << ratio;
  }
}

}  // namespace
