#include "frame/help_texts.h"

namespace {

constexpr std::string_view Press_Howto = "Please press the 'How to use MELVOR' button for details.";

constexpr auto About_Paragraphs = std::to_array<std::string_view>({
    "MELVOR is an interactive editor for the Roland JX-8P synthesizer "
    "based on the design of the Roland Programmer PG-800. ",
    "",
    "MELVOR has additional features:",
    "° TONE and PATCH parameters",
    "° MIDI Sysex messages & files",
    "° Random sound generation",
    "° Built-in Sequencer",
    "",
    "",
    "Very special thanks to:",
    "",
    " ° The musician at the JX-8P",
    "    for all his very good ideas.",
    "",
    " ° The Qt project",
    "    for its web site with the documentation.",
    "",
    " ° All MELVOR users",
});

}  // namespace

constexpr std::array<Help_Topic, 23> Help_Topic_Rows{
    Help_Topic{"Editor",
               "This is the main window of MELVOR. Here you can edit all the parameters of a tone and play "
               "notes or sequences."},
    Help_Topic{"File Dialog",
               "Allows to browse Tone or Sequencer files. If you click on a file name (or select one with "
               "the cursors and press the blank), the file is being displayed and you will hear it, "
               "depending of the Preview setting in the 'Click on File Name' area."},
    Help_Topic{
        "INI file",
        "MELVOR saves its settings into the MELVOR.INI file located in the same directory. The INI file "
        "contains informations about MELVOR Window settings, MIDI setup and recently used files."},
    Help_Topic{"JX-8P and Sysex",
               "The JX-8P must be set in Sysex mode to send and recognize Sysex messages. Press the buttons "
               "'MIDI' and then '2' and '6' on the JX-8P, then change to 'EXCLUSIVE ON', unprotect memory "
               "and press 'WRITE' to save this setting. Now the JX-8P automatically sends Sysex data when "
               "pressing a Tone button."},
    Help_Topic{"Keyboard", Press_Howto},
    Help_Topic{"Matrix", "Simply click with the left or right mouse button onto the matrix to set notes."},
    Help_Topic{"MIDI Autoplay",
               "MELVOR plays automatically a note or the actual Sequencer file in the File Dialogs when "
               "clicking on a filename. See Preview settings."},
    Help_Topic{"MIDI Autosend",
               "MELVOR sends the Tone information of the selected file to the JX-8P automatically, in other "
               "case you have to select 'Tone Send' menu."},
    Help_Topic{"MIDI keyboard (Editor)",
               "Click with the left button to play some notes. If the Sequencer matrix is filled, then the "
               "notes of the first column in the Sequencer matrix will be played. Click with the right mouse "
               "button to stop the notes playing."},
    Help_Topic{"MIDI keyboard (Sequencer)",
               "Click with the left button to play notes. Click with the right mouse button to stop playing "
               "the notes."},
    Help_Topic{"MIDI setup",
               "Select the MIDI output where your JX-8P is connected, it's MIDI channel, if MIDI is enabled "
               "and if MELVOR should automatically send the data to the JX-8P"},
    Help_Topic{"MIDI System Exclusive (Sysex)",
               "Against the standard MIDI events like notes or controllers, Sysex permits to send specific "
               "data like tones and patches to the connected device. MELVOR makes use of Sysex messages. The "
               "trick with the Patch parameters consists in saving both Tone and Patch parameters together "
               "in a single Sysex file."},
    Help_Topic{"Mouse", Press_Howto},
    Help_Topic{"Patch",
               "The Patch window contains all the additional parameters the JX-8P stores in the Patch Chain "
               "(the JX-8P does not store this values with a tone). Thanks to the sysex format, MELVOR is "
               "capable to make each tones has its own patch parameters."},
    Help_Topic{"Preload Sequence", "If checked, loads the last used Sequencer file when MELVOR starts."},
    Help_Topic{"Preview setting",
               "Selecting a file in the File Dialog will display it in the Editor or Sequencer. If "
               "'AutoPlay' is checked, a note or the actual Sequencer file will start playing."},
    Help_Topic{"Random Tone",
               "The editor parameters are set by chance to give a completely new and unpredictable sound, "
               "but you still have to change some settings to make am interesting one."},
    Help_Topic{"Range (Sequencer)", "Selection of the base octave of the Matrix and the MIDI keyboard."},
    Help_Topic{
        "Receive",
        "(Tone menu) MELVOR will wait for you to press a Tone button on your JX-8P to transmit this Tone "
        "into MELVOR. 'Receive' terminates automatically after transmission, but also can be cancelled by "
        "pressing the stop button in the Editor window. See 'JX-8P and Sysex' for additional information."},
    Help_Topic{"Save Positions",
               "(Windows menu) If checked, MELVOR saves size and postition settings of File Dialog, MELVOR "
               "(main window), Patch and Sequencer Windows."},
    Help_Topic{
        "Sequencer",
        "In this window, you can edit basic sequences in the matrix or play notes with the MIDI keyboard "
        "(mouse only). The direction of the Sequence cycle can be changed or randomized (R1 : during a "
        "cycle, R2 : after a cycle). A Sequence can be transposed with the Range and Transpose parameters."},
    Help_Topic{"Transpose (Sequencer)", "Selection of the base note of the Matrix and the MIDI Keyboard."},
    Help_Topic{"using mouse, keyboard", Press_Howto},
};

constexpr std::array<std::string_view, Help_Credit_Rows> Help_Credit_Names{
    "The MELVOR team",
    "MELVOR team, panel",
    "MELVOR team, sequencer",
    "MELVOR team, file dialog",
    "MELVOR team, MIDI",
    "MELVOR team, manual",
    "",
    "Qt",
    "JACK",
    "ALSA",
    "GoogleTest",
    "CMake",
};

constexpr std::array<std::string_view, Help_Credit_Rows> Help_Credit_Reasons{
    "Program & Beta-Test",
    "Panel pictures & Display font",
    "Oscillator & Sequencer ideas",
    "Beta-Test & Preview idea",
    "Beta-Test",
    "Help texts",
    "",
    "Windows & Timers",
    "MIDI between programs",
    "MIDI to the instrument",
    "Automatic tests",
    "Building the program",
};

std::string Help_About_Text() {
  std::string text;
  for (const std::string_view paragraph : About_Paragraphs) {
    text += paragraph;
    text += "\r\n";
  }
  return text;
}
