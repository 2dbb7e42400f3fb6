// A JACK server without hardware for this test program, under a name of its own.
#pragma once

#include <sys/types.h>

struct Jack_Server {
  Jack_Server();  // starts it, and waits until it answers
  ~Jack_Server();
  Jack_Server(const Jack_Server&) = delete;
  Jack_Server& operator=(const Jack_Server&) = delete;

  void Start();
  void Kill();  // as a crash would; returns once it is gone
  void Stop();  // stands still until Go_On
  void Go_On();

  // From now on this program's JACK clients look for a server of that name, whether one runs or not.
  static void Choose_Name();

 private:
  pid_t pid_ = -1;
};
