// The light views as screen readers and other assistive programs see them.
#pragma once

struct Shell;

// From now on pictures and canvases are known by their spoken names, roles and spoken values, and can be
// stepped up and down. shell must live until Forget_Accessible.
void Install_Accessible(Shell& shell);
void Forget_Accessible();
