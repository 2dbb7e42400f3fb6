#include "windows/state.h"

std::uint8_t Patch_Open = Flag_Off;
std::uint8_t Seq_Open = Flag_Off;
int FD_Open = Flag_False;
int Display_Blink = Flag_False;

std::string Dlg_Kind;
std::uint8_t FD_Done = Flag_Off;

int Patch_Left = 0;
int Patch_Top = 0;
int FileDlg_Left = 0;
int FileDlg_Top = 0;
int Seq_Left = 0;
int Seq_Top = 0;

int System_PPI = 0;
float PPI_Scale = 1.0F;
