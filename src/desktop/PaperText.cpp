#include "desktop/PaperText.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextOption>
#include <algorithm>
#include <map>
#include <utility>

#include "desktop/QtText.h"

namespace plandesk::desktop {

namespace {

constexpr int lookProperty = QTextFormat::UserProperty + 1;

/// A value as a text document may hold it: line ends stay within the paragraph, and no character acts as a mark of the
/// document itself.
QString asText(std::string_view value) {
    QString text = toQt(value);
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (QChar& character : text) {
        constexpr char16_t firstFrameMark = 0xFDD0;
        constexpr char16_t lastFrameMark = 0xFDEF;
        if (character == '\n')
            character = QChar::LineSeparator;
        else if (character.category() == QChar::Other_Control || character == QChar::ParagraphSeparator ||
                 character == QChar::ObjectReplacementCharacter ||
                 (character >= QChar(firstFrameMark) && character <= QChar(lastFrameMark)))
            character = ' ';
    }
    return text;
}

/// Labels are written with the blanks that once placed them; within a line those at the ends say nothing.
QString labelText(const PaperItem& item, const Date& date) {
    QString text = asText(item.text).trimmed();
    return text.replace(QStringLiteral("%D"), toQt(date.text()));
}

bool isEmptyField(const PaperItem& item) {
    return item.isField() && asText(item.value).trimmed().isEmpty();
}

bool closesUp(const QString& text) {
    static const QString marks = QStringLiteral(".,;:)/");
    return !text.isEmpty() && marks.contains(text.front());
}

}  // namespace

QFont paperFont(qreal points, bool bold) {
    constexpr int unitsPerPoint = 10;
    // A font that is kept knows where its glyphs are, in its own thread.
    static thread_local std::map<std::pair<int, bool>, QFont> fonts;
    const auto [place, isNew] = fonts.try_emplace({qRound(points * unitsPerPoint), bold});
    QFont& font = place->second;
    if (!isNew)
        return font;
    font.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("Lohit Devanagari")});
    font.setPixelSize(qRound(points * unitsPerPoint));
    font.setBold(bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

std::unique_ptr<QTextDocument> paperDocument(qreal width) {
    static EmptyField emptyField;
    auto document = std::make_unique<QTextDocument>();
    document->setUndoRedoEnabled(false);
    document->setDocumentMargin(0);
    document->setUseDesignMetrics(true);
    document->setDefaultFont(paperFont(TextLook().points, false));
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    document->setDefaultTextOption(option);
    document->setTextWidth(width);
    document->documentLayout()->registerHandler(EmptyField::type, &emptyField);
    return document;
}

void insertItems(QTextCursor& cursor, const PaperCell& items, const TextLook& look, const Date& date) {
    QTextCharFormat plain;
    plain.setFont(paperFont(look.points, look.bold), QTextCharFormat::FontPropertiesSpecifiedOnly);
    bool begun = false;
    // A question that has an answer needs no rule beside it, and one that has none needs one.
    const bool answered = !std::ranges::all_of(items, isEmptyField);
    for (const PaperItem& item : items) {
        const QString text = item.isField() ? asText(item.value) : labelText(item, date);
        if (look.field != FieldLook::Blank && isEmptyField(item) && (answered || begun))
            continue;
        // A blank for the pen stays with the word before it.
        const QChar space = isEmptyField(item) ? QChar::Nbsp : QChar::Space;
        if (begun && item.onNewLine)
            cursor.insertText(QString(QChar::LineSeparator), plain);
        else if (begun && (item.isField() || !closesUp(text)))
            cursor.insertText(QString(space), plain);
        begun = true;
        QTextCharFormat format = plain;
        if (isEmptyField(item)) {
            if (look.field != FieldLook::Plain)
                cursor.insertText(QString(QChar::ObjectReplacementCharacter), EmptyField::format(look.field, plain));
            continue;
        }
        if (item.isField() && look.field == FieldLook::Bold)
            format.setFont(paperFont(look.points, true), QTextCharFormat::FontPropertiesSpecifiedOnly);
        if (item.isField() && look.field == FieldLook::Blank)
            format.setFontUnderline(true);
        cursor.insertText(text, format);
    }
}

QTextCharFormat EmptyField::format(FieldLook look, const QTextCharFormat& around) {
    QTextCharFormat format = around;
    format.setObjectType(type);
    format.setProperty(lookProperty, static_cast<int>(look));
    return format;
}

void* EmptyField::qt_metacast(const char* className) {
    if (qstrcmp(className, qobject_interface_iid<QTextObjectInterface*>()) == 0)
        return static_cast<QTextObjectInterface*>(this);
    return QObject::qt_metacast(className);
}

QSizeF EmptyField::intrinsicSize(QTextDocument* /*document*/, int /*position*/, const QTextFormat& format) {
    constexpr qreal penWidth = 40 * paperUnitsPerMillimetre;
    constexpr qreal lightWidth = 20 * paperUnitsPerMillimetre;
    const bool blank = format.intProperty(lookProperty) == static_cast<int>(FieldLook::Blank);
    return {blank ? penWidth : lightWidth, static_cast<qreal>(format.toCharFormat().font().pixelSize())};
}

void EmptyField::drawObject(QPainter* painter, const QRectF& place, QTextDocument* /*document*/, int /*position*/,
                            const QTextFormat& format) {
    constexpr qreal line = 4;
    constexpr qreal underBaseline = 10;
    const bool blank = format.intProperty(lookProperty) == static_cast<int>(FieldLook::Blank);
    painter->setPen(QPen(blank ? QColor(Qt::black) : QColor(0x99, 0x99, 0x99), line));
    painter->drawLine(place.bottomLeft() + QPointF(0, underBaseline), place.bottomRight() + QPointF(0, underBaseline));
}

}  // namespace plandesk::desktop
