#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <span>
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

    /// Elements nested deeper than this, and a tag or document type of more than this many bytes, are refused like an
    /// ill-formed file: what the parser takes for them grows faster than they do.
    static constexpr std::size_t deepestNesting = 256;
    static constexpr std::size_t longestTag = 8 * 1024;

    /// Loads a file. False when it is no regular file, cannot be read, is not well-formed or is refused as told above;
    /// the document is then without a root. No network, no external entities; a reference to an entity that the file
    /// declares stands for nothing.
    bool load(const std::filesystem::path& path);
    /// The same of a file's bytes that are in memory.
    bool loadBytes(std::string_view bytes);

    /// The root element; `none` without one.
    Node root() const { return nodes.empty() ? none : 0; }
    /// `none` for a text or an element with nothing in it.
    Node firstChild(Node node) const { return nodes[node].end > node + 1 ? node + 1 : none; }
    /// `none` behind the last child.
    Node nextSibling(Node node) const { return nodes[node].nextSibling; }
    /// Name of an element, "#text" of a text. Valid until the next load, like `text`.
    std::string_view name(Node node) const;
    /// All text inside the node, joined, entities decoded.
    std::string_view text(Node node) const;

private:
    friend class XmlBuilder;

    /// The nodes inside one follow it up to `end`. Its name reaches in `names` to where that of the next node begins,
    /// its text in `characters` to where that of the node `end` begins.
    struct Entry {
        std::uint32_t nameBegin;
        std::uint32_t textBegin;
        Node end;
        Node nextSibling;
    };

    /// Gives the next bytes of a file: how many it put into the room, 0 at the end, less when it cannot.
    using Source = std::function<std::ptrdiff_t(std::span<char> room)>;

    bool loadFrom(std::size_t size, const Source& source);
    void reserve(std::size_t bytes);

    std::vector<Entry> nodes;
    std::string names;
    std::string characters;
};

}  // namespace plandesk
