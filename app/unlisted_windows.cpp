// The windows that no menu reaches, for pictures of them: the program with its built-in instrument, which
// opens the window that UNLISTED_WINDOW names, "MKS-70" or a task of the file dialog, at once.
#include <QApplication>
#include <QIcon>
#include <functional>
#include <utility>

#include "adapters/instrument/instrument.h"
#include "adapters/midi/service.h"
#include "adapters/qt/end_signal.h"
#include "adapters/qt/qt_desktop.h"
#include "frame/start_up.h"
#include "platform/directories.h"
#include "platform/dispatch.h"
#include "platform/drives.h"
#include "windows/file_dlg_window.h"
#include "windows/patch_mks70_window.h"
#include "windows/state.h"

int main(int argc, char** argv) {
  Prepare_Toolkit();
  QApplication application(argc, argv);
  QApplication::setApplicationName("MELVOR");
  const std::string what = qgetenv("UNLISTED_WINDOW").toStdString();
  Drives_Find();
  Directories_Find(QCoreApplication::applicationFilePath().toStdString());
  const std::string pictures = Data_Directory() + "/pictures";
  QApplication::setWindowIcon(QIcon(QString::fromStdString(pictures + "/icon.svg")));

  Qt_Desktop desktop(pictures);
  Install_Desktop(&desktop);
  Instrument::Built_In built_in;
  Midi::Service service({&built_in}, [&desktop](std::function<void()> fn) { desktop.Post(std::move(fn)); });
  Install_Midi_Service(&service);

  On_End_Signal([] { Dispatch(End_Without_Questions); });
  bool started = false;
  Dispatch([&] { started = Start_Up(); });
  Dispatch([&] {
    Dlg_Kind = what;
    Show(what == "MKS-70" ? static_cast<Form&>(Patch_MKS70) : File_Dlg);
  });
  const int result = started ? desktop.Run() : 1;

  Install_Midi_Service(nullptr);
  Install_Desktop(nullptr);
  return result;
}
