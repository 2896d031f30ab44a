#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "document/XmlDocument.h"

namespace plandesk {

/// The children of an element by number, from 0.
class XmlChildren {
public:
    XmlChildren(const XmlDocument& document, XmlDocument::Node parent) : document(document) {
        constexpr std::size_t usual = 16;
        nodes.reserve(usual);
        for (auto node = document.firstChild(parent); node != XmlDocument::none; node = document.nextSibling(node))
            nodes.push_back(node);
    }

    std::size_t count() const { return nodes.size(); }

    /// These three: RuntimeError 91 when there is no child of that number.
    XmlDocument::Node at(std::size_t number) const {
        if (number >= nodes.size())
            throw RuntimeError(ErrorNumber::ObjectNotSet);
        return nodes[number];
    }
    std::string_view text(std::size_t number) const { return document.text(at(number)); }
    /// Whether it has that name, in any case.
    bool named(std::size_t number, std::string_view name) const {
        return equalsIgnoringCase(document.name(at(number)), name);
    }

private:
    const XmlDocument& document;
    std::vector<XmlDocument::Node> nodes;
};

/// RuntimeError 91 for a document without one.
inline XmlDocument::Node requiredRoot(const XmlDocument& document) {
    if (document.root() == XmlDocument::none)
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    return document.root();
}

/// Runs `read` for each child of NTS that has that name, in any case. RuntimeError 91 without a root.
template <class Read>
void forEachLandRecord(const XmlDocument& document, std::string_view element, const Read& read) {
    const XmlChildren sections(document, requiredRoot(document));
    for (std::size_t i = 0; i < sections.count(); ++i) {
        if (!sections.named(i, "NTS"))
            continue;
        const XmlChildren blocks(document, sections.at(i));
        for (std::size_t j = 0; j < blocks.count(); ++j)
            if (blocks.named(j, element))
                read(XmlChildren(document, blocks.at(j)));
    }
}

}  // namespace plandesk
