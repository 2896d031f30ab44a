// What feeds the document checklist.

#include "reports/Feeds.h"

namespace plandesk {

namespace {

constexpr std::string_view mandatory = "frmDocCheckList";
constexpr std::string_view conditional = "frmDocCheckList1";

constexpr FeedRow page(std::string_view column, std::string_view form, std::string_view box) {
    return {column, form == mandatory ? 100 : 5, FeedRule::Page, box, form};
}

constexpr FeedRow blank(std::string_view column) {
    return {column, 5, FeedRule::Nothing};
}

// All nine mandatory documents have their pages on paper. Of the 35 conditional rows the first five have, and those are
// the documents 9 to 13 of the form.
constexpr std::array rows = std::to_array<FeedRow>({
    page("txtpagefrom1", mandatory, "txtDocPageNo(0)"),
    page("txtpagefrom2", mandatory, "txtDocPageNo(2)"),
    page("txtpagefrom3", mandatory, "txtDocPageNo(4)"),
    page("txtpagefrom4", mandatory, "txtDocPageNo(6)"),
    page("txtpagefrom5", mandatory, "txtDocPageNo(8)"),
    page("txtpagefrom6", mandatory, "txtDocPageNo(10)"),
    page("txtpagefrom7", mandatory, "txtDocPageNo(12)"),
    page("txtpagefrom8", mandatory, "txtDocPageNo(14)"),
    page("txtpagefrom9", mandatory, "txtDocPageNo(16)"),
    page("txtpageto1", mandatory, "txtDocPageNo(1)"),
    page("txtpageto2", mandatory, "txtDocPageNo(3)"),
    page("txtpageto3", mandatory, "txtDocPageNo(5)"),
    page("txtpageto4", mandatory, "txtDocPageNo(7)"),
    page("txtpageto5", mandatory, "txtDocPageNo(9)"),
    page("txtpageto6", mandatory, "txtDocPageNo(11)"),
    page("txtpageto7", mandatory, "txtDocPageNo(13)"),
    page("txtpageto8", mandatory, "txtDocPageNo(15)"),
    page("txtpageto9", mandatory, "txtDocPageNo(17)"),
    page("mtxtpagefrom1", conditional, "txtDocPageNo(18)"),
    page("mtxtpagefrom2", conditional, "txtDocPageNo(20)"),
    page("mtxtpagefrom3", conditional, "txtDocPageNo(22)"),
    page("mtxtpagefrom4", conditional, "txtDocPageNo(24)"),
    page("mtxtpagefrom5", conditional, "txtDocPageNo(26)"),
    blank("mtxtpagefrom6"),
    blank("mtxtpagefrom7"),
    blank("mtxtpagefrom8"),
    blank("mtxtpagefrom9"),
    blank("mtxtpagefrom10"),
    blank("mtxtpagefrom11"),
    blank("mtxtpagefrom12"),
    blank("mtxtpagefrom13"),
    blank("mtxtpagefrom14"),
    blank("mtxtpagefrom15"),
    blank("mtxtpagefrom16"),
    blank("mtxtpagefrom17"),
    blank("mtxtpagefrom18"),
    blank("mtxtpagefrom19"),
    blank("mtxtpagefrom20"),
    blank("mtxtpagefrom21"),
    blank("mtxtpagefrom22"),
    blank("mtxtpagefrom23"),
    blank("mtxtpagefrom24"),
    blank("mtxtpagefrom25"),
    blank("mtxtpagefrom26"),
    blank("mtxtpagefrom27"),
    blank("mtxtpagefrom28"),
    blank("mtxtpagefrom29"),
    blank("mtxtpagefrom30"),
    blank("mtxtpagefrom31"),
    blank("mtxtpagefrom32"),
    blank("mtxtpagefrom33"),
    blank("mtxtpagefrom34"),
    blank("mtxtpagefrom35"),
    page("mtxtpageto1", conditional, "txtDocPageNo(19)"),
    page("mtxtpageto2", conditional, "txtDocPageNo(21)"),
    page("mtxtpageto3", conditional, "txtDocPageNo(23)"),
    page("mtxtpageto4", conditional, "txtDocPageNo(25)"),
    page("mtxtpageto5", conditional, "txtDocPageNo(27)"),
    blank("mtxtpageto6"),
    blank("mtxtpageto7"),
    blank("mtxtpageto8"),
    blank("mtxtpageto9"),
    blank("mtxtpageto10"),
    blank("mtxtpageto11"),
    blank("mtxtpageto12"),
    blank("mtxtpageto13"),
    blank("mtxtpageto14"),
    blank("mtxtpageto15"),
    blank("mtxtpageto16"),
    blank("mtxtpageto17"),
    blank("mtxtpageto18"),
    blank("mtxtpageto19"),
    blank("mtxtpageto20"),
    blank("mtxtpageto21"),
    blank("mtxtpageto22"),
    blank("mtxtpageto23"),
    blank("mtxtpageto24"),
    blank("mtxtpageto25"),
    blank("mtxtpageto26"),
    blank("mtxtpageto27"),
    blank("mtxtpageto28"),
    blank("mtxtpageto29"),
    blank("mtxtpageto30"),
    blank("mtxtpageto31"),
    blank("mtxtpageto32"),
    blank("mtxtpageto33"),
    blank("mtxtpageto34"),
    blank("mtxtpageto35"),
});
constexpr auto columns = columnsOf(rows);

}  // namespace

const Feed feedChecklist{.rows = rows, .columns = columns, .table = &Tables::rsReportChecklist};

}  // namespace plandesk
