#include "desktop/QtText.h"

#include "base/Text.h"

namespace plandesk::desktop {

QString toQt(std::string_view text) {
    QString result;
    result.reserve(static_cast<qsizetype>(text.size()));
    // QString::fromUtf8 drops a byte order mark and replaces bytes that are no UTF-8.
    for (const char32_t codePoint : codePoints(text)) {
        if (QChar::requiresSurrogates(codePoint)) {
            result += QChar(QChar::highSurrogate(codePoint));
            result += QChar(QChar::lowSurrogate(codePoint));
        } else {
            result += QChar(static_cast<char16_t>(codePoint));
        }
    }
    return result;
}

std::string fromQt(const QString& text) {
    std::string result;
    result.reserve(static_cast<std::size_t>(text.size()));
    for (qsizetype place = 0; place < text.size(); ++place) {
        const QChar unit = text[place];
        if (unit.isHighSurrogate() && place + 1 < text.size() && text[place + 1].isLowSurrogate())
            appendUtf8(result, QChar::surrogateToUcs4(unit, text[++place]));
        else
            appendUtf8(result, unit.unicode());
    }
    return result;
}

QColor toQt(Colour colour) {
    return {colour.red, colour.green, colour.blue};
}

}  // namespace plandesk::desktop
