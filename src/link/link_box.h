#pragma once

#include <string>
#include <string_view>

namespace corvalis {

inline constexpr std::string_view kSerialManagementTitle = "Serial Management";
inline constexpr std::string_view kCommunicationManagementTitle = "Communication Management";

/// A critical box of the link, with the link's help reference. The text is Windows-1252.
void ShowLinkBox(const std::string& text, std::string_view title);

}  // namespace corvalis
