// The schemas of docs/contract take what the system writes and refuse what it does not. PLANDESK_CONTRACT_DOCUMENTS=N
// tries that many random proposals.

#include <fstream>
#include <iostream>
#include <memory>

#include <gtest/gtest.h>
#include <libxml/parser.h>
#include <libxml/xmlschemas.h>

#include "ProposalFile.h"
#include "base/Text.h"
#include "document/DocumentBlocks.h"
#include "unit/RandomRounds.h"
#include "unit/roundtrip/RandomProposal.h"

namespace plandesk::test {

namespace {

const std::string sources = PLANDESK_SOURCES;

std::string bytesOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
}

enum class Verdict { IllFormed, Refused, Taken };

class Schema {
public:
    explicit Schema(const std::string& name) {
        const std::string path = sources + "/docs/contract/" + name;
        const std::unique_ptr<xmlSchemaParserCtxt, void (*)(xmlSchemaParserCtxtPtr)> parser(
            xmlSchemaNewParserCtxt(path.c_str()), xmlSchemaFreeParserCtxt);
        schema.reset(xmlSchemaParse(parser.get()));
        EXPECT_TRUE(schema) << path;
    }

    Verdict judge(const std::string& document) const {
        const std::unique_ptr<xmlDoc, void (*)(xmlDocPtr)> parsed(
            xmlReadMemory(document.data(), static_cast<int>(document.size()), nullptr, nullptr,
                          XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING),
            xmlFreeDoc);
        if (!parsed)
            return Verdict::IllFormed;
        const std::unique_ptr<xmlSchemaValidCtxt, void (*)(xmlSchemaValidCtxtPtr)> validator(
            xmlSchemaNewValidCtxt(schema.get()), xmlSchemaFreeValidCtxt);
        complaints.clear();
        xmlSchemaSetValidStructuredErrors(
            validator.get(),
            [](void* own, xmlErrorPtr error) { static_cast<std::string*>(own)->append(error->message); }, &complaints);
        const int result = xmlSchemaValidateDoc(validator.get(), parsed.get());
        EXPECT_GE(result, 0) << "the validator gave up: " << complaints;
        return result == 0 ? Verdict::Taken : Verdict::Refused;
    }
    const std::string& complaint() const { return complaints; }

private:
    std::unique_ptr<xmlSchema, void (*)(xmlSchemaPtr)> schema{nullptr, xmlSchemaFree};
    mutable std::string complaints;
};

/// All that can be written; and that of proposals without a separator in a value.
const Schema& any() {
    static const Schema schema("proposal.xsd");
    return schema;
}
const Schema& strict() {
    static const Schema schema("proposal-strict.xsd");
    return schema;
}

std::string golden(const std::string& name) {
    return replaceAll(bytesOf(sources + "/tests/golden/" + name + ".elements"), "\n", "");
}

/// What the proposal of the world is saved as; empty when a form refuses it.
std::string saved(World& world) {
    const std::string path = "/home/proposal.xml";
    world.ports.dialogs.answers = {path};
    world.proposal.screen.event([&] { world.shell.run("mnuSaveAs_Click"); });
    const auto file = world.ports.files.contents.find(path);
    return file == world.ports.files.contents.end() ? "" : file->second;
}

struct Counts {
    int taken = 0;
    int strictly = 0;
    int illFormed = 0;
    int typedElements = 0;
};

/// Gives what random hands reach and no user does what the system itself puts there.
void settle(World& world) {
    world.box("AnnexureACont", "txtRightWay").setText("1");
    world.box("AnnexureACont", "txtAttachDoc").setText("0");
    for (const auto& [fragment, name, save] :
         {std::tuple(&Proposal::drcIssueXML, "frmIssuOfDRc", "SaveIssueOfDRC"),
          std::tuple(&Proposal::drcTransferXML, "frmDRCTransfer", "SaveDRCTransfer"),
          std::tuple(&Proposal::drcUtilisationXML, "frmDRCUtilisationForm", "SaveUtilisationDRC")}) {
        if ((world.proposal.*fragment).empty())
            continue;
        Form& form = *world.proposal.forms.touch(name);
        form.forEach<TextBox>([](TextBox& box) { box.setText(std::to_string(box.name().size())); });
        form.call(save);
    }
}

void judge(const std::string& document, std::uint64_t seed, Counts& counts) {
    const Verdict verdict = any().judge(document);
    // An element that was typed into a value which is not escaped is not the contract's.
    if (verdict != Verdict::IllFormed && document.find("<b/>") != std::string::npos) {
        EXPECT_EQ(verdict, Verdict::Refused) << "seed " << seed;
        ++counts.typedElements;
        return;
    }
    EXPECT_NE(verdict, Verdict::Refused) << "seed " << seed << ": " << any().complaint();
    ++(verdict == Verdict::Taken ? counts.taken : counts.illFormed);
    if (strict().judge(document) == Verdict::Taken)
        ++counts.strictly;
}

}  // namespace

TEST(Contract, theSchemasTakeTheGoldenDocumentsAndTheExample) {
    for (const std::string& document :
         {golden("whole-proposal"), golden("orders"), bytesOf(sources + "/docs/contract/example.xml")}) {
        EXPECT_EQ(any().judge(document), Verdict::Taken) << any().complaint();
        EXPECT_EQ(strict().judge(document), Verdict::Taken) << strict().complaint();
    }
    // An owner's name has a separator in it.
    EXPECT_EQ(any().judge(golden("land-records")), Verdict::Taken) << any().complaint();
    EXPECT_EQ(strict().judge(golden("land-records")), Verdict::Refused);
    // What is typed into the forms of development rights is not escaped.
    std::string rights = golden("development-rights");
    EXPECT_EQ(any().judge(rights), Verdict::IllFormed);
    rights = replaceAll(replaceAll(rights, " & ", " &amp; "), "<rear>", "&lt;rear>");
    EXPECT_EQ(any().judge(rights), Verdict::Taken) << any().complaint();
    EXPECT_EQ(strict().judge(rights), Verdict::Refused);  // "Plot #4"
}

TEST(Contract, theSchemaTakesWhatPartsThatAreSavedAloneLeave) {
    World world;
    world.saveNewProposal("/home/proposal.xml");
    const std::string& document = world.ports.files.contents["/home/proposal.xml"];
    EXPECT_EQ(strict().judge(document), Verdict::Taken) << strict().complaint();
    // The conditional documents in place of all.
    world.button("frmDocCheckList1", "cmdSave").press();
    world.button("frmAnnexureA", "cmdSave").press();
    EXPECT_EQ(any().judge(document), Verdict::Taken) << any().complaint();
    EXPECT_EQ(strict().judge(document), Verdict::Refused);
    // Without land records, orders and discretion.
    World other;
    other.shell.press("mnuNew");
    other.fillFirstPage();
    buildBlock(other.proposal, &Proposal::annexureBXML);
    for (const auto& [form, save] :
         {std::pair("AnnexureACont", "SaveData"), std::pair("frmDocCheckList", "cmdSave_Click"),
          std::pair("frmPayDetail", "SaveData")})
        other.proposal.forms.touch(form)->call(save);
    other.ports.dialogs.answers = {"/home/other.xml"};
    other.button("frmAnnexureA", "cmdSave").press();
    const std::string& parts = other.ports.files.contents["/home/other.xml"];
    EXPECT_EQ(any().judge(parts), Verdict::Taken) << any().complaint() << parts;
    EXPECT_EQ(strict().judge(parts), Verdict::Refused);
}

TEST(Contract, theSchemaTakesRandomProposals) {
    auto [wanted, seed] = RandomRounds(300, 50);
    const ScratchFolder folder;
    Counts first;
    Counts second;
    const int most = 10 * wanted + 100;  // where nothing can be saved the walk would have no end
    for (int tries = 0; first.taken < wanted && !HasFailure(); ++seed, ++tries) {
        ASSERT_LT(tries, most) << "hardly a proposal is saved";
        World world;
        world.shell.press("mnuNew");
        RandomProposal(world, seed).fill();
        settle(world);
        const std::string document = saved(world);
        if (document.empty())
            continue;
        judge(document, seed, first);
        World again;
        again.ports.dialogs.answers = {folder.write("first.xml", document)};
        again.shell.press("mnuOpen");
        if (const std::string next = saved(again); !next.empty())
            judge(next, seed, second);
    }
    std::cout << first.taken << " documents of random proposals taken, " << first.strictly
              << " of them by the strict schema too, " << first.illFormed << " more ill-formed, " << first.typedElements
              << " refused for an element that was typed; " << second.taken << " of those saved again after opening, "
              << second.illFormed << " ill-formed" << std::endl;
    if (wanted >= 200 && !HasFailure()) {
        EXPECT_GT(first.strictly, wanted / 50);
        EXPECT_LT(first.strictly, first.taken);
    }
}

namespace {

/// A fault of a document, made by replacing one text, which stands there, by another.
struct Fault {
    std::string_view document;
    std::string_view what;
    std::string_view from;
    std::string_view to;
    bool strictOnly = false;  ///< the other schema cannot tell it from what a typed separator moves
};

constexpr Fault faults[] = {
    {"orders", "an element is missing", "<TITLE>Row houses</TITLE>", ""},
    {"orders", "an empty element is missing", "<TIKANO></TIKANO>", ""},
    {"orders", "the last element of a section is missing", "<REMARK2></REMARK2>", ""},
    {"orders", "a section is missing",
     "<SECTION-III><ELEVEN-RAD>2</ELEVEN-RAD><ELEVEN-TEXT>###</ELEVEN-TEXT><REMARK3></REMARK3></SECTION-III>", ""},
    {"orders", "an element is doubled", "<CASETYPE>NEW</CASETYPE>", "<CASETYPE>NEW</CASETYPE><CASETYPE>NEW</CASETYPE>"},
    {"orders", "two elements changed places", "<FPNO>4</FPNO><HISSANO></HISSANO>", "<HISSANO></HISSANO><FPNO>4</FPNO>"},
    {"orders", "a block ahead of its place", "<DISC-REV>", "<DISC-NEW>##############</DISC-NEW><DISC-REV>"},
    {"orders", "the spelling is mended", "<COMPUNDFEES>0.00</COMPUNDFEES>", "<COMPOUNDFEES>0.00</COMPOUNDFEES>"},
    {"orders", "the case of a name is another", "<ReservationType></ReservationType>",
     "<RESERVATIONTYPE></RESERVATIONTYPE>"},
    {"orders", "an element nobody knows", "<SECTION-II>", "<SECTION-II><SECTION-IIA></SECTION-IIA>"},
    {"orders", "an element within a text", "<TITLE>Row houses</TITLE>", "<TITLE>Row <b>houses</b></TITLE>"},
    {"orders", "a text between elements", "</SECTION-I><SECTION-II>", "</SECTION-I>and<SECTION-II>"},
    {"orders", "another root", "INWARDINFO", "OUTWARDINFO"},
    {"orders", "the root without its attribute", " DEPARTMENT='BP'", ""},
    {"orders", "another department", "DEPARTMENT='BP'", "DEPARTMENT='TP'"},
    {"orders", "an attribute nobody knows", "<SECTION-I>", "<SECTION-I VERSION='2'>"},
    {"orders", "another name space", "<INWARDINFO DEPARTMENT='BP'>", "<INWARDINFO xmlns='urn:x' DEPARTMENT='BP'>"},
    {"orders", "a case type nobody writes", "<CASETYPE>NEW</CASETYPE>", "<CASETYPE>RES</CASETYPE>"},
    {"orders", "a use that is not in the list", "<PROPOSALTYPE>Residential</PROPOSALTYPE>",
     "<PROPOSALTYPE>residential</PROPOSALTYPE>"},
    {"orders", "a date in another form", "<PROPOSALDATE>05/06/2026</PROPOSALDATE>",
     "<PROPOSALDATE>2026-06-05</PROPOSALDATE>"},
    {"orders", "no date", "<PROPOSALDATE>05/06/2026</PROPOSALDATE>", "<PROPOSALDATE></PROPOSALDATE>"},
    {"orders", "a village by its name", "<SECTOR>11</SECTOR>", "<SECTOR>Khandri</SECTOR>"},
    {"orders", "a professional nobody knows", "<ARCHINFO>ARCH#", "<ARCHINFO>ENG#"},
    {"orders", "a name too few", "<ARCHINFO>ARCH#Deshpande#Asha##CA/99/1234</ARCHINFO>",
     "<ARCHINFO>ARCH#Deshpande#CA/99/1234</ARCHINFO>"},
    {"orders", "a name too many", "<ARCHINFO>ARCH#Deshpande#Asha##CA/99/1234</ARCHINFO>",
     "<ARCHINFO>ARCH#Deshpande#Asha###CA/99/1234</ARCHINFO>", true},
    {"orders", "an answer too few", "<THREE-RAD>2#2</THREE-RAD>", "<THREE-RAD>2</THREE-RAD>"},
    {"orders", "an answer too many", "<SEVEN-RAD>2#2#2#2</SEVEN-RAD>", "<SEVEN-RAD>2#2#2#2#2</SEVEN-RAD>"},
    {"orders", "an answer in words", "<FOUR-RAD>2</FOUR-RAD>", "<FOUR-RAD>Yes</FOUR-RAD>"},
    {"orders", "an answer that is none", "<FOUR-RAD>2</FOUR-RAD>", "<FOUR-RAD>3</FOUR-RAD>"},
    {"orders", "one area alone", "<THREE-TEXT>1250.75#1200.5</THREE-TEXT>", "<THREE-TEXT>1250.75</THREE-TEXT>"},
    {"orders", "a figure with a comma", "<TOTALFSI>1.5</TOTALFSI>", "<TOTALFSI>1,5</TOTALFSI>"},
    {"orders", "the element that is always empty is not", "<TIKANO></TIKANO>", "<TIKANO>1.5</TIKANO>"},
    {"orders", "texts too few", "<EIGHT-TEXT>#######</EIGHT-TEXT>", "<EIGHT-TEXT>######</EIGHT-TEXT>"},
    {"orders", "texts too many", "<EIGHT-TEXT>#######</EIGHT-TEXT>", "<EIGHT-TEXT>########</EIGHT-TEXT>", true},
    {"orders", "a zone nobody knows", "<SIX-A></SIX-A>", "<SIX-A>R9</SIX-A>"},
    {"orders", "the second answers of the chowk", "<ONESIX-RAD>2#2#2</ONESIX-RAD>", "<ONESIX-RAD>2#2</ONESIX-RAD>",
     true},
    {"orders", "a section's packed list is short", "<ONESEVEN-TEXT>####</ONESEVEN-TEXT>",
     "<ONESEVEN-TEXT>###</ONESEVEN-TEXT>", true},
    {"orders", "a document too few", "<DOCCHKLIST>0-0-0#", "<DOCCHKLIST>"},
    {"orders", "a document with one page", "<DOCCHKLIST>0-0-0#", "<DOCCHKLIST>1-1#"},
    {"orders", "a separator between the checklists", "0-0-00-0-0", "0-0-0#0-0-0"},
    {"orders", "a mode of payment nobody knows", "<PAYMODE>CASH</PAYMODE>", "<PAYMODE>DRAFT</PAYMODE>", true},
    {"orders", "a payment without a date", "<PAYDATE>05/06/2026</PAYDATE>", "<PAYDATE></PAYDATE>", true},
    {"orders", "an answer of the annexure in words", "<IsPlotNarrow>2</IsPlotNarrow>",
     "<IsPlotNarrow>No</IsPlotNarrow>"},
    {"orders", "streets and trees too few", "<Section9a3536>2####</Section9a3536>",
     "<Section9a3536>2###</Section9a3536>"},
    {"orders", "land records outside of theirs", "<NTS>", "<NAOrder></NAOrder><NTS>"},
    {"orders", "the number of extracts in words", "<NoOfExtract>3</NoOfExtract>", "<NoOfExtract>three</NoOfExtract>",
     true},
    {"orders", "an extract is passed over", "Extract2>", "Extract4>"},
    {"orders", "an extract under the name of the other kind", "PRC1>", "Extract1>"},
    {"orders", "survey data too few", "<Static>11##05/06/2026##2#1250.75#</Static>",
     "<Static>11##05/06/2026##2#1250.75</Static>"},
    {"orders", "survey data without a date", "<Static>11##05/06/2026##2#1250.75#</Static>",
     "<Static>11##soon##2#1250.75#</Static>"},
    {"orders", "owners from 0", "<OWNER1>Anand &amp; Sons##0</OWNER1>", "<OWNER0>Anand &amp; Sons##0</OWNER0>"},
    {"orders", "owners ahead of their number", "<NoOfOwner>2</NoOfOwner><OWNER1>Anand &amp; Sons##0</OWNER1>",
     "<OWNER1>Anand &amp; Sons##0</OWNER1><NoOfOwner>2</NoOfOwner>"},
    {"orders", "a signing status in words", "<OWNER1>Chitale##0</OWNER1>", "<OWNER1>Chitale#Signed#0</OWNER1>"},
    {"orders", "an encumbrance in words", "<OWNER1>Chitale##0</OWNER1>", "<OWNER1>Chitale##none</OWNER1>"},
    {"orders", "an owner of a PRC without the type's place", "<OWNER1>Damle##0#</OWNER1>", "<OWNER1>Damle##0</OWNER1>"},
    {"orders", "a holder's sign in words", "<PAH1>#0</PAH1>", "<PAH1>#No</PAH1>"},
    {"orders", "an order's date in another form", "<OrderDate>05/06/2026</OrderDate>",
     "<OrderDate>5/6/2026</OrderDate>"},
    {"orders", "a controlling document nobody knows", "<DOCCONTROLLINGOWNERSHIP>1<", "<DOCCONTROLLINGOWNERSHIP>3<"},
    {"orders", "an extract of the orders without its kind", "<EXTRACT-1 DOCTYPE = '712' >", "<EXTRACT-1>"},
    {"orders", "another kind of extract", "<EXTRACT-4 DOCTYPE = 'PRC' >", "<EXTRACT-4 DOCTYPE = 'prc' >"},
    {"orders", "an order chosen by its name", "<ULCORDER>Chitale#2##</ULCORDER>",
     "<ULCORDER>Chitale#U/S 22##</ULCORDER>", true},
    {"orders", "an order's values too few", "<ULC-US-84>########</ULC-US-84>", "<ULC-US-84>#######</ULC-US-84>"},
    {"orders", "a plot's values too few", "<US-84-PLOT-1>##############</US-84-PLOT-1>",
     "<US-84-PLOT-1>#############</US-84-PLOT-1>"},
    {"orders", "a pair without its sign", "13^14</ULC-US-20a1>", "1314</ULC-US-20a1>", true},
    {"orders", "one value of two", "<ULC-US-22>#</ULC-US-22>", "<ULC-US-22></ULC-US-22>"},
    {"orders", "the older form of the plots", "<PLOT-REL>2^#^3^#^1$-$A$-$2@->2$-$B$-$1@-></PLOT-REL>",
     "<PLOT-REL>2^#^3^#^1-A-2@->2-B-1@-></PLOT-REL>"},
    {"orders", "plots without the last sign", "<PLOT-PRCDETAILS>1^#^2^#^1$-$C$-$2@-></PLOT-PRCDETAILS>",
     "<PLOT-PRCDETAILS>1^#^2^#^1$-$C$-$2</PLOT-PRCDETAILS>"},
    {"orders", "a row of the discretion too few", "<RULE-19>##one more</RULE-19>", ""},
    {"orders", "a row of the discretion too many", "</DISC-REV>", "<RULE-20>##</RULE-20></DISC-REV>"},
    {"orders", "remarks too few", "<DISC-NEW> Front margin ##############Lobby</DISC-NEW>",
     "<DISC-NEW> Front margin #############Lobby</DISC-NEW>"},
    {"whole-proposal", "a certificate's values too few", "</INWARDINFO>",
     "<ISSUEOFDRC>IN/7#01/02/2026</ISSUEOFDRC></INWARDINFO>"},
};

}  // namespace

TEST(Contract, theSchemasRefuseBrokenDocuments) {
    for (const Fault& fault : faults) {
        const std::string whole = golden(std::string(fault.document));
        ASSERT_NE(whole.find(fault.from), std::string::npos) << fault.what;
        const std::string broken = replaceAll(whole, fault.from, fault.to);
        EXPECT_EQ(strict().judge(broken), Verdict::Refused) << fault.what;
        EXPECT_EQ(any().judge(broken), fault.strictOnly ? Verdict::Taken : Verdict::Refused) << fault.what;
    }
    std::cout << std::size(faults) << " broken documents" << std::endl;
}

}  // namespace plandesk::test
