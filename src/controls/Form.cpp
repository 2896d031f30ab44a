#include "controls/Form.h"

#include <algorithm>
#include <charconv>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "controls/Controls.h"
#include "controls/Screen.h"

namespace plandesk {

bool IgnoringCase::operator()(std::string_view a, std::string_view b) const {
    const auto lower = [](unsigned char c) { return c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : int{c}; };
    return std::ranges::lexicographical_compare(a, b, {}, lower, lower);
}

bool ControlKey::operator==(const ControlKey& other) const {
    return index == other.index && (name == other.name || equalsIgnoringCase(name, other.name));
}

std::size_t ControlKey::Hash::operator()(const ControlKey& key) const {
    auto hash = static_cast<std::size_t>(key.index);
    for (const char character : key.name)
        hash = hash * 31 + (static_cast<unsigned char>(character) | 0x20U);  // the same for both cases of a letter
    return hash;
}

Form::Form(Screen& screen, std::string_view name, std::string_view caption)
    : desk(screen), formName(name), title(caption) {
    desk.stack.insert(desk.stack.begin(), this);
}

Form::~Form() {
    desk.forget(*this);
}

Form& Form::operator=(const Form& other) {
    if (this == &other)
        return *this;
    title = other.title;
    back = other.back;
    shown = other.shown;
    active = counterpart(other.active);
    turned = other.turned;
    return *this;
}

Control* Form::counterpart(const Control* control) const {
    return control ? find(control->name(), control->index()) : nullptr;
}

const Layout& Form::layout() const {
    static const Layout none;
    return none;
}

void Form::setCaption(std::string_view caption) {
    if (title == caption)
        return;
    title = caption;
    desk.formTouched(*this);
}

void Form::setBackColor(Colour colour) {
    if (back == colour)
        return;
    back = colour;
    desk.formTouched(*this);
}

void Form::show() {
    shown = true;
    bringToFront();
}

void Form::showModal() {
    desk.openModal(*this);
    show();
}

void Form::hide() {
    if (!shown)
        return;
    shown = false;
    desk.closeModal(*this);
    desk.leaveForm(*this);
    desk.formTouched(*this);
}

void Form::bringToFront() {
    desk.raise(*this);
    desk.formTouched(*this);
}

bool Form::front() const {
    return desk.frontForm() == this;
}

Control* Form::find(std::string_view controlName, int index) const {
    const auto found = byKey.find({controlName, index});
    return found == byKey.end() ? nullptr : found->second;
}

Control* Form::findKey(std::string_view key) const {
    const std::size_t bracket = key.find('(');
    if (bracket == std::string_view::npos)
        return find(key);
    const std::string_view digits = key.substr(bracket + 1);
    const char* const end = digits.data() + digits.size();
    int index = Control::noIndex;
    const auto [stop, error] = std::from_chars(digits.data(), end, index);
    const bool sound = error == std::errc{} && index >= 0 && std::string_view(stop, end) == ")";
    return sound ? find(key.substr(0, bracket), index) : nullptr;
}

void Form::appendNamed(std::vector<Control*>& order, std::string_view keys) const {
    for (const std::string& key : split(keys, " "))
        if (Control* control = findKey(key))
            order.push_back(control);
}

void Form::functionKey(std::string_view key) {
    if (key == "Esc")
        pressClose();
}

std::vector<Control*> Form::tabOrder() const {
    std::vector<Control*> order;
    appendGroups(order, layout().top);
    const std::vector<Control*> page = pageOrder();
    order.insert(order.end(), page.begin(), page.end());
    appendNamed(order, layout().buttons);
    appendNamed(order, layout().head);
    return order;
}

std::vector<Control*> Form::pageOrder() const {
    std::vector<Control*> order;
    const Layout& sheet = layout();
    const auto* strip = dynamic_cast<const TabStrip*>(findKey(sheet.tabs));
    for (std::size_t page = 0; page < sheet.pages.size(); ++page)
        if (!strip || static_cast<int>(page) == strip->tab())
            appendGroups(order, sheet.pages[page].groups);
    return order;
}

void Form::appendGroups(std::vector<Control*>& order, std::span<const LayoutGroup> groups) const {
    for (const LayoutGroup& group : groups) {
        const Control* frame = findKey(group.frame);
        if (frame && !frame->visible())
            continue;
        for (const LayoutRow& row : group.rows)
            appendNamed(order, row.controls);
    }
}

namespace {

bool answers(const Control* control) {
    return control->takesFocus() && control->kind() != ControlKind::Button && control->kind() != ControlKind::Label &&
           control->kind() != ControlKind::Image;
}

Control* firstOf(const std::vector<Control*>& order) {
    auto first = std::ranges::find_if(order, answers);
    if (first == order.end())
        first = std::ranges::find_if(order, &Control::takesFocus);
    if (first == order.end())
        return nullptr;
    const auto* option = dynamic_cast<const OptionButton*>(*first);
    return option ? option->group().stop() : *first;
}

}  // namespace

Control* Form::firstAnswer() const {
    return firstOf(tabOrder());
}

Control* Form::firstOfPage() const {
    Control* first = firstOf(pageOrder());
    return first ? first : firstAnswer();
}

void Form::procedure(std::string_view procedureName, std::function<void()> body) {
    procedures.emplace(procedureName, std::move(body));
}

bool Form::run(std::string_view procedureName) {
    if (const auto found = procedures.find(procedureName); found != procedures.end()) {
        found->second();
        return true;
    }
    const std::size_t underscore = procedureName.rfind('_');
    if (underscore == std::string_view::npos)
        return false;
    Control* control = find(procedureName.substr(0, underscore));
    return control && control->fire(procedureName.substr(underscore + 1));
}

void Form::call(std::string_view procedureName) {
    if (!run(procedureName))
        missing(procedureName);
}

void Form::missing(std::string_view wanted) const {
    throw RuntimeError(ErrorNumber::ItemNotFound, formName + " has no " + std::string(wanted));
}

}  // namespace plandesk
