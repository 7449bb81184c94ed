#include "link/link_error.h"

#include <string>
#include <utility>

#include "link/link_box.h"
#include "link/run_progress.h"
#include "link/serial_management.h"

namespace corvalis {

std::string_view LinkErrorText(std::int16_t error) {
  switch (error) {
    case 0:
      return "                            ";
    case 1:
      return "  [RDS] checksum was wrong  ";
    case 2:
      return " [RDS] pointer value too big";
    case 3:
      return "     [RDS] code unknown     ";
    case 4:
      return "     [RDS] parity wrong     ";
    case 5:
      return " [RDS] stop bits were wrong ";
    case 6:
      return " [RDS] number of bytes wrong";
    case 7:
      return " [RDS] read mode not allowed";
    case kErrorBeforeAddress:
      return " [RDS] before send address  ";
    case 9:
      return " [RDS] starting code unknown";
    case 10:
      return " [RDS]write mode not allowed";
    case 11:
      return "  [RDS] address was wrong   ";
    case kErrorTxTimeout:
      return "   [ TX ] serial timeout    ";
    case kErrorUnconnected:
      return " [ TX ] serial unconnected  ";
    case kErrorNotAcknowledged:
      return "   [ TX ] not acknowledge   ";
    case kErrorRxTimeout:
      return "   [ RX ] serial timeout    ";
    case kErrorRxChecksum:
      return " [ RX ] checksum was wrong  ";
    case 17:
      return "[ RX ] pointer value too big";
    case kErrorRxCode:
      return "    [ RX ] code unknown     ";
    case 19:
      return "    [ RX ] parity wrong     ";
    case 20:
      return "[ RX ] stop bits were wrong ";
    case kErrorRxLength:
      return "[ RX ] number of bytes wrong";
    case 22:
      return "  [ RX ] not acknowledge    ";
    case 23:
      return "    [ RX ] overrun error    ";
    case kErrorRxStart:
      return "[ RX ] starting code unknown";
    case 25:
      return "     Baudrate mismatch      ";
    // 26 has a text of its own in the Coder's list, " [ RX ] error not codified  ", which is never
    // shown: the number falls through to the last text.
    case 27:
      return " [ TX ] RDS not responding  ";
    default:
      return "       Unmanged error       ";
  }
}

void ReportLinkError(std::string_view label) {
  if (LinkError == kErrorAborted) return;
  if (LinkError == kErrorBeforeAddress) TellAddressWanted();
  ShowLinkBox(std::string(label) + ":" + std::string(LinkErrorText(LinkError)),
              kSerialManagementTitle);
  // ESC on the transfer screen beside the box ends the run there.
  if (std::exchange(EscPressed, false)) LinkError = kErrorAborted;
}

}  // namespace corvalis
