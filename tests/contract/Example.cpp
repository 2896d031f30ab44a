// A document with every value filled in, and what becomes of each when it is opened and saved again.

#include <algorithm>
#include <map>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "contract/Contract.h"
#include "contract/Machine.h"
#include "contract/Notes.h"
#include "document/XmlChildren.h"
#include "proposal/mdlProject.h"

namespace plandesk::contract {

namespace {

std::string compose(const std::vector<Value>& values, const Composition& composition, std::size_t& first,
                    std::size_t depth) {
    const Value& start = values[first];
    const auto shares = [&](const Value& value) {
        return value.place.size() >= depth &&
               std::equal(start.place.begin(), start.place.begin() + static_cast<std::ptrdiff_t>(depth),
                          value.place.begin());
    };
    std::string text;
    std::string separator;
    while (first < values.size() && shares(values[first])) {
        if (values[first].place.size() == depth) {  // one value, or several that run together
            text += composition.of(values[first++]);
            continue;
        }
        const Step& step = values[first].place[depth];
        const std::string sign = composition.sign(step.separator);
        const std::string piece = compose(values, composition, first, depth + 1);
        text += separator + (step.piece == 0 ? composition.repeated(piece + sign) : piece);
        separator = sign;
    }
    return text;
}

}  // namespace

std::string composed(const std::vector<Value>& values, const Composition& composition) {
    std::size_t first = 0;
    return values.empty() ? "" : compose(values, composition, first, 0);
}

std::string valueIn(const Value& value, std::string_view text) {
    std::string piece(text);
    for (const Step& step : value.place) {
        const std::vector<std::string> pieces = split(piece, step.separator);
        const std::size_t number = step.piece == 0 ? 0 : static_cast<std::size_t>(step.piece) - 1;
        if (number >= pieces.size())
            return "";
        piece = pieces[number];
    }
    switch (value.cut) {
    case Cut::First:
        return piece.substr(0, 1);
    case Cut::BehindFirst:
        return piece.empty() ? "" : piece.substr(1);
    case Cut::BeforeLast:
        return piece.empty() ? "" : piece.substr(0, piece.size() - 1);
    case Cut::Last:
        return piece.empty() ? "" : piece.substr(piece.size() - 1);
    default:
        return piece;
    }
}

namespace {

void append(std::string& xml, const Element& element) {
    const Composition examples{.of = [](const Value& value) { return value.example.value(); },
                               .sign = [](const std::string& separator) { return separator; },
                               .repeated = [](const std::string& piece) { return piece; }};
    const std::string name = element.name + (element.times == Times::Numbered ? "1" : "");
    xml += "<" + name;
    if (!element.attribute.empty())
        xml += element.name == "INWARDINFO" ? " DEPARTMENT='BP'" : " DOCTYPE = '712' ";
    xml += ">" + EscapeXML(composed(element.values, examples));
    for (const Element& child : element.children)
        append(xml, child);
    xml += "</" + name + ">";
}

/// Texts of the elements by their paths, each number given as "<n>".
using Texts = std::map<std::string, std::string>;

void gather(const XmlDocument& document, XmlDocument::Node node, const Element& element, Texts& texts) {
    texts[element.path] = document.text(node);
    for (auto child = document.firstChild(node); child != XmlDocument::none; child = document.nextSibling(child))
        for (const Element& known : element.children)
            if (document.name(child) == known.name + (known.times == Times::Numbered ? "1" : ""))
                gather(document, child, known, texts);
}

void tell(Element& element, const Texts& after, std::vector<std::string>& untold) {
    for (Element& child : element.children)
        tell(child, after, untold);
    const auto text = after.find(element.path);
    int number = 0;
    for (Value& value : element.values) {
        ++number;
        const std::string now = text == after.end() ? "(no such element)" : valueIn(value, text->second);
        const bool back = now == value.example.value();
        const bool toldBack = value.reading.starts_with("comes back");
        const bool toldLost = value.reading.starts_with("lost") && !value.example.value().empty();
        if (back && value.reading.empty())
            value.reading = "comes back";
        else if (back ? toldLost : toldBack || value.reading.empty())
            untold.push_back(element.path + " " + std::to_string(number) + " (" + value.question + "): \"" +
                             value.example.value() + "\" becomes \"" + now + "\"");
    }
}

const Element* at(const Element& element, std::string_view path) {
    if (element.path == path)
        return &element;
    for (const Element& child : element.children)
        if (const Element* found = at(child, path))
            return found;
    return nullptr;
}

/// The forms of the orders show each text of the example in the box that the notes say.
void checkOrders(const Element& root, Proposal& proposal, std::vector<std::string>& untold) {
    for (const OrderControls& order : orderControls()) {
        Form& form = *proposal.forms.touch(order.form);
        Recordset& extracts = proposal.tables.ensure(&Tables::rsULCOrder);
        extracts.setFilter("");
        extracts.moveFirst();
        form.call(order.loads);
        for (const Value& value : at(root, order.path)->values) {
            const auto* box = dynamic_cast<const TextBox*>(form.findKey(value.controls.front()));
            // Areas are worked out anew on the way.
            if (box && value.form == order.form && value.typed.empty() && box->text() != value.example)
                untold.push_back(std::string(order.form) + "." + box->key() + " shows " + box->text() + ", not " +
                                 value.example.value());
        }
    }
}

}  // namespace

std::string exampleDocument(const Element& root) {
    std::string xml = "<?xml version = '1.0' ?>";
    append(xml, root);
    return xml + "\r\n";
}

void findReadings(Element& root) {
    Machine machine;
    machine.system.shell.openBytes(exampleDocument(root), SilentMachine::path);
    std::string told;
    for (const Message& message : machine.system.machine.told)
        told += message.text + "\n";
    machine.system.machine.told.clear();
    machine.system.shell.press("mnuSave");
    if (!machine.system.machine.written) {
        for (const Message& message : machine.system.machine.told)
            told += message.text + "\n";
        throw RuntimeError(ErrorNumber::InvalidProcedureCall, "the example is not saved again:\n" + told);
    }
    if (!told.empty())
        throw RuntimeError(ErrorNumber::InvalidProcedureCall, "the example does not open in silence:\n" + told);
    XmlDocument again;
    again.loadBytes(*machine.system.machine.written);
    Texts after;
    gather(again, again.root(), root, after);
    std::vector<std::string> untold;
    tell(root, after, untold);
    checkOrders(root, machine.system.proposal, untold);
    if (!untold.empty())
        throw RuntimeError(ErrorNumber::ItemNotFound,
                           "nobody tells, or a note tells wrongly, what becomes of\n" + join(untold, "\n"));
}

}  // namespace plandesk::contract
