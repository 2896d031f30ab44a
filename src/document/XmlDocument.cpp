#include "document/XmlDocument.h"

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

#include <fcntl.h>
#include <libxml/SAX2.h>
#include <libxml/parser.h>
#include <sys/stat.h>
#include <unistd.h>

namespace plandesk {

namespace {

constexpr std::size_t largestDocument = 0xFFFFFF00;  // positions are kept in 32 bits

std::string_view view(const xmlChar* text) {
    return reinterpret_cast<const char*>(text);
}

bool blank(std::string_view text) {
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

}  // namespace

/// Fills a document from the parser's events.
class XmlBuilder {
public:
    explicit XmlBuilder(XmlDocument& document) : document(document) {}

    /// Whether anything was read since this was asked last.
    bool takeProgress() { return std::exchange(progress, false); }
    /// Whether what was read last was the text of a CDATA section, perhaps the first part of it.
    bool characterDataLast() const { return characterData; }
    void passedOver() { heard(); }
    void characterDataRead(std::string_view part) {
        text(part);
        characterData = true;
    }

    void startElement(std::string_view name) {
        heard();
        flush(!blank(pending));
        open.push_back({add(name), XmlDocument::none});
    }

    void endElement() {
        heard();
        flush(open.back().lastChild == XmlDocument::none || !blank(pending));
        document.nodes[open.back().element].end = static_cast<XmlDocument::Node>(document.nodes.size());
        open.pop_back();
    }

    void text(std::string_view text) {
        heard();
        if (!open.empty())
            pending += text;
    }

    bool fits() const {
        return open.size() <= XmlDocument::deepestNesting && document.nodes.size() < largestDocument &&
               document.names.size() < largestDocument && document.characters.size() + pending.size() < largestDocument;
    }

private:
    void heard() {
        progress = true;
        characterData = false;
    }

    struct Open {
        XmlDocument::Node element;
        XmlDocument::Node lastChild;
    };

    XmlDocument::Node add(std::string_view name) {
        const auto node = static_cast<XmlDocument::Node>(document.nodes.size());
        document.nodes.push_back({static_cast<std::uint32_t>(document.names.size()),
                                  static_cast<std::uint32_t>(document.characters.size()), node + 1, XmlDocument::none});
        document.names += name;
        if (!open.empty()) {
            if (open.back().lastChild != XmlDocument::none)
                document.nodes[open.back().lastChild].nextSibling = node;
            open.back().lastChild = node;
        }
        return node;
    }

    /// Turns the characters read since the last tag into a text node, or drops them.
    void flush(bool keep) {
        if (keep && !pending.empty()) {
            add("");
            document.characters += pending;
        }
        pending.clear();
    }

    XmlDocument& document;
    std::vector<Open> open;
    std::string pending;
    bool progress = false;
    bool characterData = false;
};

namespace {

XmlBuilder& builderOf(void* context) {
    return *static_cast<XmlBuilder*>(static_cast<xmlParserCtxtPtr>(context)->_private);
}

void onStartElement(void* context, const xmlChar* name, const xmlChar** /*attributes*/) {
    builderOf(context).startElement(view(name));
    if (!builderOf(context).fits())
        xmlStopParser(static_cast<xmlParserCtxtPtr>(context));
}

void onEndElement(void* context, const xmlChar* /*name*/) {
    builderOf(context).endElement();
}

void onCharacters(void* context, const xmlChar* text, int length) {
    builderOf(context).text({reinterpret_cast<const char*>(text), static_cast<std::size_t>(length)});
}

void onCharacterData(void* context, const xmlChar* text, int length) {
    builderOf(context).characterDataRead({reinterpret_cast<const char*>(text), static_cast<std::size_t>(length)});
}

void onComment(void* context, const xmlChar* /*text*/) {
    builderOf(context).passedOver();
}

void onInstruction(void* context, const xmlChar* /*target*/, const xmlChar* /*data*/) {
    builderOf(context).passedOver();
}

/// Keeps a declared entity, so that a reference to it is well-formed, without what it stands for.
void onEntity(void* context, const xmlChar* name, int type, const xmlChar* publicId, const xmlChar* systemId,
              xmlChar* content) {
    xmlChar nothing[] = "";
    if (!xmlGetPredefinedEntity(name))
        xmlSAX2EntityDecl(context, name, type, publicId, systemId, content ? nothing : nullptr);
}

xmlSAXHandler handlers() {
    xmlSAXHandler sax{};
    xmlSAXVersion(&sax, 1);  // without namespaces, whose declarations would be searched for each element
    sax.startElement = onStartElement;
    sax.endElement = onEndElement;
    sax.characters = onCharacters;
    sax.ignorableWhitespace = onCharacters;
    sax.cdataBlock = onCharacterData;
    sax.entityDecl = onEntity;
    sax.attributeDecl = nullptr;
    sax.elementDecl = nullptr;
    sax.notationDecl = nullptr;
    sax.unparsedEntityDecl = nullptr;
    sax.reference = nullptr;
    sax.comment = onComment;
    sax.processingInstruction = onInstruction;
    sax.externalSubset = nullptr;
    sax.error = nullptr;
    sax.warning = nullptr;
    return sax;
}

struct FreeParser {
    void operator()(xmlParserCtxtPtr parser) const {
        if (parser->myDoc)
            xmlFreeDoc(parser->myDoc);
        parser->myDoc = nullptr;
        xmlFreeParserCtxt(parser);
    }
};

struct Descriptor {
    int number;
    explicit Descriptor(int number) : number(number) {}
    ~Descriptor() {
        if (number >= 0)
            close(number);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
};

/// Watches for a tag or document type that is longer than any we take: the parser is fed and reads nothing. Comments,
/// processing instructions and CDATA sections, which cost nothing, are waited for longer.
class Waiting {
public:
    bool tooLong(xmlParserCtxtPtr parser, std::string_view chunk, XmlBuilder& builder) {
        if (builder.takeProgress()) {
            const std::size_t passed = unread.size() - std::min(unread.size(), kept);
            unread.erase(0, passed);
            begin += static_cast<long>(passed);
            askAt = XmlDocument::longestTag;
        }
        unread += chunk;
        if (unread.size() <= askAt)
            return false;
        askAt = 2 * unread.size();  // asking costs as much as is unread where the file has another encoding
        const long inside = xmlByteConsumed(parser) - begin;
        if (inside < 0 || inside > static_cast<long>(unread.size()))
            return true;
        const auto at = static_cast<std::size_t>(inside);
        const std::string construct = plain(unread.substr(at, kept));
        const bool withinCharacterData = builder.characterDataLast() && !plain(unread.substr(0, at)).ends_with("]]>");
        return !withinCharacterData && !construct.starts_with("<!--") && !construct.starts_with("<?");
    }

private:
    static constexpr std::size_t kept = 16;  // bytes: enough for the marks, in every encoding

    /// The marks as they are in an encoding of one byte a character.
    static std::string plain(std::string bytes) {
        std::erase(bytes, '\0');
        return bytes;
    }

    std::string unread;  ///< the file from shortly before the chunk in which something was read last
    long begin = 0;      ///< where that is in the file
    std::size_t askAt = XmlDocument::longestTag;
};

template <class Source>
bool parse(const Source& source, XmlBuilder& builder) {
    // Documents are read in several threads, and the library wants to be started in one of them alone.
    [[maybe_unused]] static const bool started = (xmlInitParser(), true);
    // The parser would tell of broken encodings on the program's error output; the messages of the reader tell of them.
    xmlSetStructuredErrorFunc(nullptr, [](void*, xmlErrorPtr) {});
    xmlSAXHandler sax = handlers();
    const std::unique_ptr<xmlParserCtxt, FreeParser> parser(
        xmlCreatePushParserCtxt(&sax, nullptr, nullptr, 0, nullptr));
    if (!parser)
        return false;
    parser->_private = &builder;
    xmlCtxtUseOptions(parser.get(), XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING);
    std::array<char, XmlDocument::longestTag / 2> chunk;
    Waiting waiting;
    for (;;) {
        const std::ptrdiff_t length = source(chunk);
        if (length < 0)
            return false;
        xmlParseChunk(parser.get(), chunk.data(), static_cast<int>(length), length == 0);
        if (!parser->wellFormed || !builder.fits())
            return false;
        if (length == 0)
            return true;
        if (waiting.tooLong(parser.get(), {chunk.data(), static_cast<std::size_t>(length)}, builder))
            return false;
    }
}

}  // namespace

bool XmlDocument::load(const std::filesystem::path& path) {
    *this = {};
    const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status {};
    if (file.number < 0 || fstat(file.number, &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    return loadFrom(static_cast<std::size_t>(status.st_size),
                    [&file](std::span<char> room) { return read(file.number, room.data(), room.size()); });
}

bool XmlDocument::loadBytes(std::string_view bytes) {
    return loadFrom(bytes.size(), [&bytes](std::span<char> room) {
        const std::size_t length = bytes.copy(room.data(), room.size());
        bytes.remove_prefix(length);
        return static_cast<std::ptrdiff_t>(length);
    });
}

bool XmlDocument::loadFrom(std::size_t size, const Source& source) {
    *this = {};
    reserve(size);
    XmlBuilder builder(*this);
    const bool loaded = parse(source, builder);
    if (!loaded)
        *this = {};
    return loaded;
}

/// Room for what a proposal of that many bytes holds.
void XmlDocument::reserve(std::size_t bytes) {
    constexpr std::size_t most = 1024 * 1024;
    nodes.reserve(std::min(bytes, most) / 16);
    names.reserve(std::min(bytes, most) / 4);
    characters.reserve(std::min(bytes, most) / 2);
}

std::string_view XmlDocument::name(Node node) const {
    const std::size_t begin = nodes[node].nameBegin;
    const std::size_t end = node + 1 < nodes.size() ? nodes[node + 1].nameBegin : names.size();
    return begin == end ? "#text" : std::string_view(names).substr(begin, end - begin);
}

std::string_view XmlDocument::text(Node node) const {
    const std::size_t begin = nodes[node].textBegin;
    const std::size_t end = nodes[node].end < nodes.size() ? nodes[nodes[node].end].textBegin : characters.size();
    return std::string_view(characters).substr(begin, end - begin);
}

}  // namespace plandesk
