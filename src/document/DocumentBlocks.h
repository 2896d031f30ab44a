#pragma once

#include <span>
#include <string>
#include <string_view>

namespace plandesk {

class Proposal;
class XmlDocument;

/// Where a block stands in the document.
enum class BlockPlace { BehindSections, LandRecords, BehindLandRecords };

/// One block of the document behind its sections: a text that lives in the proposal and keeps its value until it is
/// built again.
struct DocumentBlock {
    std::string_view element;
    BlockPlace place;
    std::string Proposal::*fragment;
    /// The fragment is the inside of the element, which is written even when there is nothing in it.
    bool bare = false;

    std::string_view builder{};  ///< name by which `build` is known to scripts, or empty
    /// Replaces the fragment. Null: the block's form leaves it when it saves.
    void (*build)(Proposal& proposal) = nullptr;

    std::string_view reader{};  ///< name by which `read` is known to scripts
    /// Takes over the block, and those behind it without a reader of their own, from a document. RuntimeError 91 when
    /// it has no root. Null: the block is read with another, by the sections' reader, or by nothing.
    void (*read)(Proposal& proposal, const XmlDocument& document) = nullptr;
};

/// All blocks, in the order of reading. The document has those of each place together, in this order too.
std::span<const DocumentBlock> documentBlocks();

/// Builds, or reads from a document, the block whose text is `fragment`. RuntimeError 3265 when there is no such block
/// or nothing that does it.
void buildBlock(Proposal& proposal, std::string Proposal::*fragment);
void readBlock(Proposal& proposal, std::string Proposal::*fragment, const XmlDocument& document);

}  // namespace plandesk
