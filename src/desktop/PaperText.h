#pragma once

#include <QFont>
#include <QObject>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextObjectInterface>
#include <memory>

#include "controls/Paper.h"

// How the items of a paper become text of the toolkit. Lengths on paper are in tenths of a point, 720 to the inch: a
// font of 9 points has 90 pixels then, and lines break at the same places on every printer and screen.

namespace plandesk::desktop {

constexpr int paperUnitsPerInch = 720;
constexpr qreal paperUnitsPerMillimetre = paperUnitsPerInch / 25.4;

/// How a field shows its value, and that it has none.
enum class FieldLook {
    Plain,  ///< as it is; nothing
    Bold,   ///< an answer among questions; a light rule when all of the cell is empty
    Blank,  ///< underlined; a rule that has room for the pen
};

struct TextLook {
    int points = 9;
    bool bold = false;
    FieldLook field = FieldLook::Bold;
};

/// The font of all papers, of that size in points on paper.
QFont paperFont(qreal points, bool bold);

/// An empty document for a piece of paper of that width, whose lines break within a word where that is too long.
std::unique_ptr<QTextDocument> paperDocument(qreal width);

/// Appends the items in the one paragraph of the cursor, with a blank between two of them where they need one. `date`
/// stands for "%D".
void insertItems(QTextCursor& cursor, const PaperCell& items, const TextLook& look, const Date& date);

/// The rule of an empty field.
class EmptyField : public QObject, public QTextObjectInterface {
public:
    static constexpr int type = QTextFormat::UserObject;
    static QTextCharFormat format(FieldLook look, const QTextCharFormat& around);

    /// How the toolkit asks for the interface.
    void* qt_metacast(const char* className) override;
    QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
    void drawObject(QPainter* painter, const QRectF& place, QTextDocument* document, int position,
                    const QTextFormat& format) override;
};

}  // namespace plandesk::desktop
