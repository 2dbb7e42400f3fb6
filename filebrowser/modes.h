// The tasks of the file dialog, by Dlg_Kind: caption, filters, panel and extension.
// Called by the dialog's load and by its filter list.
#pragma once

// Sets the window up for Dlg_Kind. "Save_SYX" changes nothing but the filter list.
void FD_Setup_Mode();

// An entry of the filter list was chosen: it gives extension and pattern. "All Files" leaves both, and turns
// the dialog into the kind "Open_ALL", which has no confirm action.
void FD_Filter_Click();
