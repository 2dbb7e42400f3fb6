#include "platform/dispatch.h"

#include <new>
#include <string>

#include "platform/desktop.h"
#include "platform/runtime_error.h"

std::function<void()> Event_Ended;

namespace {

void Show_Failure(int number) {
  Message_Box("Error " + std::to_string(number) + ": " + std::string(Error_Text(number)), Box_Stop);
}

void Tell_Failure() {
  try {
    throw;
  } catch (const Runtime_Error& error) {
    Show_Failure(error.number);
  } catch (const std::bad_alloc&) {
    Show_Failure(Error_Out_Of_Memory);
  } catch (const std::exception& error) {
    Message_Box(std::string("Unexpected error: ") + error.what(), Box_Stop);
  }
}

}  // namespace

void Report_Failure() noexcept {
  try {
    Tell_Failure();
  } catch (const Program_Ended&) {
    return;
  }
}
