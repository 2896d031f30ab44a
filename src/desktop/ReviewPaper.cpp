#include "desktop/ReviewPaper.h"

#include <utility>

#include "desktop/QtText.h"

namespace plandesk::desktop {

namespace {

PaperCell fixed(std::string_view words) {
    return {{.text = words}};
}

/// A text that is none of the layout's own.
PaperCell own(std::string text) {
    return {{.field = "text", .value = std::move(text)}};
}

QString titleOf(const ReviewGroup& group) {
    return QStringLiteral("%1 (%2)").arg(group.title).arg(group.lines.size());
}

}  // namespace

Paper paperOf(const ReviewHeading& heading, const ReviewGroups& groups) {
    Paper paper{.name = "review", .title = "Review"};
    paper.date = heading.date;
    PaperSection head{SectionKind::Heading, {{{own(heading.title)}}}};
    if (!heading.proposal.empty())
        head.rows.push_back({{own(heading.proposal)}});
    head.rows.push_back({{fixed("%D")}});
    paper.header.push_back(std::move(head));
    PaperSection table{SectionKind::Table, {{{fixed("Question"), fixed("What"), fixed("Where")}, RowStyle::Head}}};
    table.widths = {34, 42, 24};
    for (const ReviewGroup& group : groups) {
        table.rows.push_back({{own(fromQt(titleOf(group)))}, RowStyle::Band});
        for (const ReviewLine& line : group.lines)
            table.rows.push_back({{own(fromQt(line.question)), own(fromQt(line.text)), own(fromQt(line.place))}});
    }
    paper.body.push_back(std::move(table));
    return paper;
}

std::string textOf(const ReviewHeading& heading, const ReviewGroups& groups) {
    std::string text = heading.title + '\n';
    if (!heading.proposal.empty())
        text += heading.proposal + '\n';
    text += heading.date.text() + '\n';
    for (const ReviewGroup& group : groups) {
        text += '\n' + fromQt(titleOf(group)) + '\n';
        for (const ReviewLine& line : group.lines) {
            text += "\n  " + fromQt(line.question) + '\n';
            for (const QString& part : {line.text, line.place})
                if (!part.isEmpty())
                    text += "    " + fromQt(part) + '\n';
        }
    }
    return text;
}

}  // namespace plandesk::desktop
