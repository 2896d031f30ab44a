#pragma once

#include <QString>

namespace plandesk {
class Form;
}

namespace plandesk::desktop {

/// What the user reads as the name of a form where several stand side by side: its caption, and the pages that it holds
/// where another form goes on with them.
QString windowName(const Form& form);

/// What a page is called: its number and what it is about, the title of the one frame on it, or its number alone.
QString pageName(const Form& form, int page);

/// What the tab of the page shows: the title of the one frame on it, or else its number.
QString pageTab(const Form& form, int page);

}  // namespace plandesk::desktop
