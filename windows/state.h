// The little state that several windows share: which are open, where they stood, how the file dialog is used.
// Each flag is written by the window that it tells of, unless told otherwise.
#pragma once

#include <cstdint>
#include <string>

// Values of a byte flag and of an integer flag.
constexpr std::uint8_t Flag_On = 255;
constexpr std::uint8_t Flag_Off = 0;
constexpr int Flag_True = -1;
constexpr int Flag_False = 0;

extern std::uint8_t Patch_Open;  // Flag_On while the Patch window is loaded
extern std::uint8_t Seq_Open;    // Flag_On while the Sequencer window is loaded
extern int FD_Open;              // Flag_True while the file dialog exists
extern int Display_Blink;        // flips at each tick of Timer_Display while the file dialog exists

extern std::string Dlg_Kind;  // the file dialog's task, set by its caller: "Open_SYX", "SaveAs_SEQ", ...
extern std::uint8_t FD_Done;  // Flag_On when a load or save has succeeded and the file dialog is to close

// Remembered corners of the child windows, in twips. Read from and written to the settings by core/.
extern int Patch_Left, Patch_Top, FileDlg_Left, FileDlg_Top, Seq_Left, Seq_Top;

extern int System_PPI;   // pixels per inch of the screen; 0 before the load
extern float PPI_Scale;  // System_PPI / 96
