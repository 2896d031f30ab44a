#include "desktop/LongText.h"

#include <QLocale>

#include "desktop/QtText.h"

namespace plandesk::desktop {

namespace {

constexpr std::size_t longestEdited = 160'000;  // bytes
constexpr std::size_t longestWord = 2'000;      // bytes

QString lengthMark(std::size_t size) {
    return QStringLiteral(" \u2026 [the beginning of %1]")
        .arg(QLocale::c().formattedDataSize(static_cast<qint64>(size), 1, QLocale::DataSizeSIFormat));
}

/// Where to cut so that no character is cut in two: at most three bytes before `place`.
std::size_t characterStart(std::string_view text, std::size_t place) {
    constexpr unsigned continuationBits = 0xC0;
    constexpr unsigned continuation = 0x80;
    constexpr std::size_t longestCharacter = 4;
    for (std::size_t start = place; start + longestCharacter > place; --start)
        if ((static_cast<unsigned char>(text[start]) & continuationBits) != continuation)
            return start;
    return place;
}

}  // namespace

bool fitsEditor(std::string_view text, bool breaksWords) {
    if (text.size() > longestEdited)
        return false;
    std::size_t word = 0;
    for (const char character : text) {
        const bool ends = character == ' ' || character == '\n' || character == '\r' || character == '\t';
        word = ends ? 0 : word + 1;
        if (breaksWords && word > longestWord)
            return false;
    }
    return true;
}

QString beginning(std::string_view text, std::size_t most) {
    if (text.size() <= most)
        return toQt(text);
    return toQt(text.substr(0, characterStart(text, most))) + lengthMark(text.size());
}

}  // namespace plandesk::desktop
