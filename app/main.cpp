// The program: picks the adapters, hands them to the platform, runs the frame.

#include <QApplication>
#include <QIcon>
#include <cstdlib>
#include <functional>
#include <utility>

#include "adapters/alsa/alsa_backend.h"
#include "adapters/instrument/instrument.h"
#include "adapters/jack/jack_backend.h"
#include "adapters/midi/service.h"
#include "adapters/qt/end_signal.h"
#include "adapters/qt/qt_desktop.h"
#include "frame/start_up.h"
#include "platform/chance.h"
#include "platform/directories.h"
#include "platform/dispatch.h"
#include "platform/drives.h"

int main(int argc, char** argv) {
  Prepare_Toolkit();
  QApplication application(argc, argv);
  QApplication::setApplicationName("MELVOR");
  QApplication::setDesktopFileName("io.github.melvor.melvor");
  Drives_Find();
  Directories_Find(QCoreApplication::applicationFilePath().toStdString());
  Randomize();
  const std::string pictures = Data_Directory() + "/pictures";
  QApplication::setWindowIcon(QIcon(QString::fromStdString(pictures + "/icon.svg")));

  Qt_Desktop desktop(pictures);
  Install_Desktop(&desktop);

  // Static, so that they take their leave of the systems behind them also where the toolkit ends the process.
  static Alsa::Alsa_Backend alsa;
  static Jack::Jack_Backend jack;
  static Instrument::Built_In built_in;
  // The desktop goes first, but the frame closes the input before.
  static Midi::Service service({&alsa, &jack, &built_in},
                               [&desktop](std::function<void()> fn) { desktop.Post(std::move(fn)); });
  Install_Midi_Service(&service);

  On_End_Signal([] { Dispatch(End_Without_Questions); });
  bool started = false;
  Dispatch([&] { started = Start_Up(); });
  // Registered behind all that it uses, which so outlives it.
  std::atexit(End_Without_Desktop);
  const int result = started ? desktop.Run() : 1;

  Install_Midi_Service(nullptr);
  Install_Desktop(nullptr);
  return result;
}
