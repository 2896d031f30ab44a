#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace plandesk {

/// A loaded XML document: elements and texts in document order. Comments, processing instructions and whitespace
/// between elements are no nodes. Kept flat, so that a file of any shape takes a small multiple of its size in memory.
class XmlDocument {
public:
    using Node = std::uint32_t;
    static constexpr Node none = 0xFFFFFFFF;

    /// Loads a file. False when it is no regular file, cannot be read or is not well-formed; the document is then
    /// without a root. No network, no external entities; entities declared in the file are not expanded.
    bool load(const std::filesystem::path& path);

    /// The root element; `none` without one.
    Node root() const { return nodes.empty() ? none : 0; }
    /// `none` for a text or an element with nothing in it.
    Node firstChild(Node node) const { return nodes[node].end > node + 1 ? node + 1 : none; }
    /// `none` behind the last child.
    Node nextSibling(Node node) const { return nodes[node].nextSibling; }
    /// Name of an element, "#text" of a text.
    const std::string& name(Node node) const { return names[nodes[node].name]; }
    /// All text inside the node, joined, entities decoded. Valid until the next load.
    std::string_view text(Node node) const;

private:
    friend class XmlBuilder;

    /// The nodes inside one follow it up to `end`; its text is the stretch of `characters` that they cover.
    struct Entry {
        std::uint32_t name;
        Node end;
        Node nextSibling;
        std::uint32_t textBegin;
        std::uint32_t textEnd;
    };

    std::vector<Entry> nodes;
    std::string characters;
    std::vector<std::string> names;
};

}  // namespace plandesk
