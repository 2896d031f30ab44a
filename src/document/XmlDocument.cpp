#include "document/XmlDocument.h"

#include <array>
#include <functional>
#include <map>
#include <memory>

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
    explicit XmlBuilder(XmlDocument& document) : document(document) { textNumber = number("#text"); }

    void startElement(std::string_view prefix, std::string_view localName) {
        flush(!blank(pending));
        const XmlDocument::Node element =
            add(number(prefix.empty() ? std::string(localName) : std::string(prefix) + ":" + std::string(localName)));
        open.push_back({element, XmlDocument::none});
    }

    void endElement() {
        flush(open.back().lastChild == XmlDocument::none || !blank(pending));
        XmlDocument::Entry& entry = document.nodes[open.back().element];
        entry.end = static_cast<XmlDocument::Node>(document.nodes.size());
        entry.textEnd = textPosition();
        open.pop_back();
    }

    void characters(std::string_view text) {
        if (!open.empty())
            pending += text;
    }

    bool fits() const {
        return document.nodes.size() < largestDocument && document.characters.size() + pending.size() < largestDocument;
    }

    xmlParserCtxtPtr parser = nullptr;

private:
    struct Open {
        XmlDocument::Node element;
        XmlDocument::Node lastChild;
    };

    std::uint32_t number(const std::string& name) {
        const auto [entry, added] = numbers.emplace(name, static_cast<std::uint32_t>(document.names.size()));
        if (added)
            document.names.push_back(name);
        return entry->second;
    }

    std::uint32_t textPosition() const { return static_cast<std::uint32_t>(document.characters.size()); }

    XmlDocument::Node add(std::uint32_t name) {
        const auto node = static_cast<XmlDocument::Node>(document.nodes.size());
        document.nodes.push_back({name, node + 1, XmlDocument::none, textPosition(), textPosition()});
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
            const XmlDocument::Node node = add(textNumber);
            document.characters += pending;
            document.nodes[node].textEnd = textPosition();
        }
        pending.clear();
    }

    XmlDocument& document;
    std::map<std::string, std::uint32_t, std::less<>> numbers;
    std::uint32_t textNumber = 0;
    std::vector<Open> open;
    std::string pending;
};

namespace {

/// The builder, or null while the parser looks into a declared entity, whose content is not taken.
XmlBuilder* builderOf(void* context) {
    auto* parser = static_cast<xmlParserCtxtPtr>(context);
    auto* builder = static_cast<XmlBuilder*>(parser->_private);
    return builder && builder->parser == parser ? builder : nullptr;
}

void onStartElement(void* context, const xmlChar* localName, const xmlChar* prefix, const xmlChar* /*uri*/,
                    int /*namespaces*/, const xmlChar** /*declared*/, int /*attributes*/, int /*defaulted*/,
                    const xmlChar** /*values*/) {
    if (XmlBuilder* builder = builderOf(context))
        builder->startElement(prefix ? view(prefix) : std::string_view(), view(localName));
}

void onEndElement(void* context, const xmlChar* /*localName*/, const xmlChar* /*prefix*/, const xmlChar* /*uri*/) {
    if (XmlBuilder* builder = builderOf(context))
        builder->endElement();
}

void onCharacters(void* context, const xmlChar* text, int length) {
    if (XmlBuilder* builder = builderOf(context))
        builder->characters({reinterpret_cast<const char*>(text), static_cast<std::size_t>(length)});
}

xmlSAXHandler handlers() {
    xmlSAXHandler sax;
    xmlSAXVersion(&sax, 2);  // declarations are kept as usual, so that a reference to a declared entity is well-formed
    sax.startElementNs = onStartElement;
    sax.endElementNs = onEndElement;
    sax.characters = onCharacters;
    sax.ignorableWhitespace = onCharacters;
    sax.cdataBlock = onCharacters;
    sax.reference = nullptr;
    sax.comment = nullptr;
    sax.processingInstruction = nullptr;
    sax.externalSubset = nullptr;
    sax.error = nullptr;
    sax.warning = nullptr;
    sax.serror = nullptr;
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

bool parse(int file, XmlBuilder& builder) {
    xmlSAXHandler sax = handlers();
    const std::unique_ptr<xmlParserCtxt, FreeParser> parser(
        xmlCreatePushParserCtxt(&sax, nullptr, nullptr, 0, nullptr));
    if (!parser)
        return false;
    parser->_private = &builder;
    builder.parser = parser.get();
    xmlCtxtUseOptions(parser.get(), XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING);
    std::array<char, 64 * 1024> chunk;
    while (builder.fits()) {
        const ssize_t length = read(file, chunk.data(), chunk.size());
        if (length < 0)
            return false;
        if (xmlParseChunk(parser.get(), chunk.data(), static_cast<int>(length), length == 0) != 0 &&
            !parser->wellFormed)
            return false;
        if (length == 0)
            return parser->wellFormed;
    }
    return false;
}

}  // namespace

bool XmlDocument::load(const std::filesystem::path& path) {
    *this = {};
    const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status {};
    bool loaded = file.number >= 0 && fstat(file.number, &status) == 0 && S_ISREG(status.st_mode);
    if (loaded) {
        XmlBuilder builder(*this);
        loaded = parse(file.number, builder);
    }
    if (!loaded)
        *this = {};
    return loaded;
}

std::string_view XmlDocument::text(Node node) const {
    const Entry& entry = nodes[node];
    return std::string_view(characters).substr(entry.textBegin, entry.textEnd - entry.textBegin);
}

}  // namespace plandesk
