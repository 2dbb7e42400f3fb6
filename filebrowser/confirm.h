// What a file name is picked for: the real loads and saves of the file dialog, by Dlg_Kind.
// Called by its Ok button, by Enter in the file name, and by a double click in its file list.
#pragma once

// Adds the extension to a bare name, then loads or saves. Failures are told in a box with the name. The
// window closes when FD_Done is on, else the whole name is selected.
void FD_Confirm();

// Loads the clicked file; in "SaveAs_SYX" takes over its name without writing it, and brings the undo copies
// back. The extension is added only where the window stays.
void FD_Double_Click();
