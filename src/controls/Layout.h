#pragma once

#include <span>
#include <string_view>

// What a form looks like, as data: pages of groups of rows. A view turns it into widgets, and the tab order is the
// order in which the controls are named here. The names are looked up in the form when it is first drawn.

namespace plandesk {

/// One question with the controls that answer it. A row of which no control is visible is not shown.
struct LayoutRow {
    std::string_view item{};      ///< printed item mark: "3 a.", or empty
    std::string_view question{};  ///< text beside the controls, over a grid, or empty
    /// Names of the controls in screen order, separated by blanks; a member of an array as NAME(INDEX). A row without
    /// controls shows its question over the whole width.
    std::string_view controls{};
    std::string_view unit{};   ///< "Sq. Mtrs" behind the controls, or empty
    std::string_view mark{};   ///< "*" mandatory, "#" one of a pair, or empty
    std::string_view label{};  ///< name of the label control whose live caption is the question, or empty
    int lines = 0;             ///< rows of a grid or lines of a box to be seen at once; 0: as many as suit most
    /// Name of the grid below which the row's one control stands, under the column that the grid says; the question
    /// stands right before it.
    std::string_view under{};
    std::string_view spoken{};  ///< what screen readers and messages call the row when its question does not tell it
};

struct LayoutGroup {
    std::string_view title{};  ///< heading, or empty
    std::span<const LayoutRow> rows{};
    /// Column heads: with them the row's controls stand in aligned columns, one head for each, the first one over the
    /// questions.
    std::span<const std::string_view> heads{};
    /// Name of the frame control whose caption is the heading and that hides the whole group.
    std::string_view frame{};
    bool lastFills = false;  ///< with heads: the last column takes the room that the others leave
};

struct LayoutPage {
    std::span<const LayoutGroup> groups;
    std::string_view name{};  ///< what a numbered page is about, for tips and screen readers: "plot and zone"
};

struct Layout {
    /// Width of the question column in average characters of the system font.
    int questionWidth = 56;
    std::string_view head{};             ///< names of the controls in the row above the pages: links, page buttons
    std::span<const LayoutGroup> top{};  ///< stands above the tabs, whichever of them is chosen
    /// Name of the tab strip that chooses the page; without one, all pages stand one below the other.
    std::string_view tabs{};
    std::span<const std::string_view> tabCaptions{};  ///< empty: see `firstTabNumber`
    std::span<const LayoutPage> pages{};
    std::string_view buttons{};  ///< names of the controls in the row below the pages
    /// Names of the buttons that lead to the page before the first one and to the page behind the last one, when those
    /// pages stand on other forms.
    std::string_view pageBefore{};
    std::string_view pageBehind{};
    bool centred = false;  ///< the form stands in the middle of the desk
    /// Tabs without captions of their own are called by their frame, or by numbers that run on from this one.
    int firstTabNumber = 1;
};

}  // namespace plandesk
