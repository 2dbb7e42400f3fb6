#include "platform/runtime_error.h"

#include <algorithm>
#include <array>

namespace {

struct Error_Row {
  int number;
  std::string_view text;
};

// Every text is a literal, so that its data() ends in a zero byte.
constexpr std::array Error_Rows{
    Error_Row{Error_Overflow, "Overflow"},
    Error_Row{Error_Out_Of_Memory, "Out of memory"},
    Error_Row{Error_Subscript, "Subscript out of range"},
    Error_Row{Error_Division_By_Zero, "Division by zero"},
    Error_Row{Error_Bad_File_Name, "Bad file name or number"},
    Error_Row{Error_File_Not_Found, "File not found"},
    Error_Row{Error_Device_IO, "Device I/O error"},
    Error_Row{Error_Disk_Full, "Disk full"},
    Error_Row{Error_Past_End, "Input past end of file"},
    Error_Row{Error_Device_Unavailable, "Device unavailable"},
    Error_Row{Error_Permission_Denied, "Permission denied"},
    Error_Row{Error_Path_Access, "Path/File access error"},
    Error_Row{Error_Path_Not_Found, "Path not found"},
    Error_Row{Error_Bad_Property_Value, "Invalid property value"},
    Error_Row{Error_Cancelled, "Cancel was selected"},
};

}  // namespace

std::string_view Error_Text(int number) {
  const auto row = std::find_if(Error_Rows.begin(), Error_Rows.end(),
                                [number](const Error_Row& candidate) { return candidate.number == number; });
  return row == Error_Rows.end() ? std::string_view("Application-defined or object-defined error")
                                 : row->text;
}
