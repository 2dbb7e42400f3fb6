// The signals by which the system asks the program to end.
#pragma once

#include <functional>

// Runs on_end on the user-interface thread when SIGTERM, SIGINT or SIGHUP comes, also while a message box is
// open or a handler waits. Called once, after the application object is made. False if the system refuses it;
// then the signals keep their ordinary effect.
bool On_End_Signal(std::function<void()> on_end);
