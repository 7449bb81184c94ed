#pragma once

#include <string>
#include <string_view>

namespace corvalis {

/// Writes a text to the open port as it stands, one byte a character, past frames and checksums.
/// All input received so far is thrown away. Does nothing while the link is released; a port that
/// can't write is not told of.
void SendModemText(std::string_view text);

/// Takes all bytes received so far, as a text.
[[nodiscard]] std::string ReadReceivedText();

/// Dials `number` by tone, or else by pulses, and returns without waiting for the connection.
void ModemDial(std::string_view number, bool tone);

/// Calls the modem back to commands and has it hang up, once it has answered with a byte, whatever
/// that is. A modem that is silent for 20 seconds is sent no command to hang up, and nobody is
/// told.
void ModemHangUp();

}  // namespace corvalis
