// The oscillator's branch of the file menu, which stays hidden: the program stores no curves.
#pragma once

// Asks about an unsaved tone, then opens the file dialog for curves; what is chosen there is not read.
void Menu_File_Osc_Open();
void Menu_File_Osc_SaveAs();
