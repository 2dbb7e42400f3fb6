// Numbered run-time errors: the one kind of failure that the program's procedures raise and catch by number.
// Anybody may raise one; where nobody catches it, the event that led to it ends (dispatch.h).
#pragma once

#include <exception>
#include <string>
#include <string_view>

constexpr int Error_Overflow = 6;
constexpr int Error_Out_Of_Memory = 7;
constexpr int Error_Subscript = 9;
constexpr int Error_Division_By_Zero = 11;
constexpr int Error_Bad_File_Name = 52;
constexpr int Error_File_Not_Found = 53;
constexpr int Error_Device_IO = 57;
constexpr int Error_Disk_Full = 61;
constexpr int Error_Past_End = 62;
constexpr int Error_Device_Unavailable = 68;
constexpr int Error_Permission_Denied = 70;
constexpr int Error_Path_Access = 75;
constexpr int Error_Path_Not_Found = 76;
constexpr int Error_Bad_Property_Value = 380;
constexpr int Error_Cancelled = 32755;

// The platform's text for an error number, without a full stop; a general text for a number it does not know.
std::string_view Error_Text(int number);

struct Runtime_Error : std::exception {
  explicit Runtime_Error(int error_number) : number(error_number) {}
  const char* what() const noexcept override { return Error_Text(number).data(); }

  int number;
};
