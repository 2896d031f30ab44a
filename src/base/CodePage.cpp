#include "base/CodePage.h"

#include <bit>
#include <cerrno>
#include <clocale>
#include <cstdint>
#include <cstdlib>
#include <utility>

#include <iconv.h>
#include <langinfo.h>

#include "base/Text.h"

namespace plandesk {

namespace {

constexpr const char* utf8Name = "UTF-8";
constexpr const char* codePointCharset = std::endian::native == std::endian::little ? "UTF-32LE" : "UTF-32BE";

bool isUtf8(std::string_view codePage) {
    return equalsIgnoringCase(codePage, utf8Name) || equalsIgnoringCase(codePage, "UTF8");
}

/// Name of the locale for characters, or an empty text when none is set.
std::string localeName() {
    for (const char* variable : {"LC_ALL", "LC_CTYPE", "LANG"}) {
        const char* value = std::getenv(variable);
        if (value && *value)
            return value;
    }
    return {};
}

/// The character set that the machine knows for a locale whose name does not tell it.
std::string installedCharset(const std::string& locale) {
    const locale_t installed = newlocale(LC_CTYPE_MASK, locale.c_str(), nullptr);
    if (!installed)
        return utf8Name;
    std::string charset = nl_langinfo_l(CODESET, installed);
    freelocale(installed);
    return charset;
}

/// A conversion from code points into one character set.
class Converter {
public:
    explicit Converter(const std::string& codePage) : handle(iconv_open(codePage.c_str(), codePointCharset)) {}
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;
    ~Converter() {
        if (known())
            iconv_close(handle);
    }

    /// Whether the machine knows the character set.
    bool known() const { return reinterpret_cast<std::intptr_t>(handle) != -1; }

    std::string convert(std::u32string text) {
        char* in = reinterpret_cast<char*>(text.data());
        std::size_t inLeft = text.size() * sizeof(char32_t);
        while (!step(&in, &inLeft)) {
            // The character at `in` has no place in the set; "?" is tried in its stead.
            char32_t* failed = text.data() + (text.size() - inLeft / sizeof(char32_t));
            if (*failed != U'?') {
                *failed = U'?';
            } else {
                in += sizeof(char32_t);
                inLeft -= sizeof(char32_t);
            }
        }
        // Ends a shift sequence, where the set has them.
        step(nullptr, nullptr);
        return std::move(result);
    }

private:
    /// Converts as far as it goes; false when it stopped at a character that the set cannot hold.
    bool step(char** in, std::size_t* inLeft) {
        for (;;) {
            char buffer[4096];
            char* out = buffer;
            std::size_t outLeft = sizeof buffer;
            const bool done = iconv(handle, in, inLeft, &out, &outLeft) != static_cast<std::size_t>(-1);
            const bool full = !done && errno == E2BIG;
            result.append(buffer, out);
            if (!full)
                return done;
        }
    }

    iconv_t handle;
    std::string result;
};

}  // namespace

std::string systemCodePage() {
    const std::string locale = localeName();
    if (locale.empty())
        return utf8Name;
    if (locale == "C" || locale == "POSIX")
        return "ASCII";
    const std::size_t point = locale.find('.');
    if (point == std::string::npos)
        return installedCharset(locale);
    const std::string charset = locale.substr(point + 1, locale.find('@', point) - point - 1);
    return isUtf8(charset) ? utf8Name : charset;
}

std::string toCodePage(std::string_view utf8, const std::string& codePage) {
    Converter converter(codePage);
    if (isUtf8(codePage) || !converter.known())
        return std::string(utf8);
    return converter.convert(codePoints(utf8));
}

}  // namespace plandesk
