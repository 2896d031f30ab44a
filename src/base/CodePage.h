#pragma once

#include <string>
#include <string_view>

namespace plandesk {

/// Name of the character set of the system's code page: that of the user's locale (LC_ALL, LC_CTYPE, LANG).
/// With none of the three set it is "UTF-8", so that a machine without any locale writes what a UTF-8 one does; the
/// locales "C" and "POSIX", where set, are "ASCII".
std::string systemCodePage();

/// `utf8` in the character set `codePage`; a character that it cannot hold becomes "?". In UTF-8, and in a set
/// that the machine does not know, the text comes back byte for byte.
std::string toCodePage(std::string_view utf8, const std::string& codePage);

}  // namespace plandesk
