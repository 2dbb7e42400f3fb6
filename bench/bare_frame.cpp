// What the toolkit alone costs: a frame of the program's size with one child window, to compare start and
// memory with. bare_frame MILLISECONDS TICKS: runs a precise timer, prints at which microsecond each tick
// came, and ends.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int Panel_Width_px = 528;
constexpr int Panel_Height_px = 456;
constexpr int Frame_Width_px = 541;
constexpr int Frame_Height_px = 508;

void Print_Time() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  std::printf("%lld\n",
              static_cast<long long>(std::chrono::duration_cast<std::chrono::microseconds>(now).count()));
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QMainWindow frame;
  auto* area = new QMdiArea(&frame);
  frame.setCentralWidget(area);
  auto* inside = new QLabel(QStringLiteral("MELVOR"));
  inside->setFixedSize(Panel_Width_px, Panel_Height_px);
  area->addSubWindow(inside);
  frame.resize(Frame_Width_px, Frame_Height_px);
  frame.show();

  QTimer timer;
  int left = argc > 2 ? std::atoi(argv[2]) : 0;
  if (left > 0) {
    QObject::connect(&timer, &QTimer::timeout, &timer, [&left] {
      Print_Time();
      if (--left == 0) QApplication::quit();
    });
    timer.setTimerType(Qt::PreciseTimer);
    timer.start(std::atoi(argv[1]));
  }
  return QApplication::exec();
}
