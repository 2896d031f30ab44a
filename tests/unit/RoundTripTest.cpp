// Random proposals are saved, opened and saved again; the second file is what the rules foretell from the first.
// PLANDESK_ROUND_TRIP_SEED=N repeats the one proposal of that seed, PLANDESK_ROUND_TRIPS=N tries that many.

#include <cstdlib>
#include <iostream>
#include <random>

#include <gtest/gtest.h>

#include "ProposalFile.h"
#include "RoundTripModel.h"
#include "base/CodePage.h"

namespace plandesk::test {

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr int usualRounds = 300;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr int usualRounds = 300;
#else
constexpr int usualRounds = 2000;
#endif
#else
constexpr int usualRounds = 2000;
#endif

/// Fills the forms in at random. The same seed fills them in alike.
class RandomProposal {
public:
    RandomProposal(World& world, std::uint64_t seed) : world(world), engine(seed) {
        // Most texts of most proposals are tame, so that files stay well-formed and fields in their places.
        spice = static_cast<int>(below(4));
    }

    void fill() {
        for (const std::string_view form : {"frmAnnexureA", "AnnexureACont"})
            fillParticulars(*world.proposal.forms.touch(form));
        fillChecklist("frmDocCheckList", 9);
        fillChecklist("frmDocCheckList1", 14);
        fillPayment();
    }

private:
    std::uint64_t below(std::uint64_t limit) { return engine() % limit; }
    bool oneIn(std::uint64_t odds) { return below(odds) == 0; }
    template <std::size_t size>
    std::string_view oneOf(const std::string_view (&texts)[size]) {
        return texts[below(size)];
    }

    std::string text() {
        static constexpr std::string_view tame[] = {"", "1", "12.50", "Plot 7", "Sai Krupa", "0", "2", "1250.75", "x"};
        static constexpr std::string_view separators[] = {"@", "||", "|", "#", "~", "\\", "$$", "$", "-", "^#^", "||@"};
        static constexpr std::string_view odd[] = {"&",
                                                   "<",
                                                   ">",
                                                   "&amp;",
                                                   "<b/>",
                                                   "]]>",
                                                   "\"",
                                                   "'",
                                                   "  ",
                                                   "\n",
                                                   "\t",
                                                   "\xE0\xA4\x97\xE0\xA4\xBE\xE0\xA4\xB5",
                                                   "\xF0\x9F\x8F\xA0",
                                                   "%",
                                                   "1e3",
                                                   "1,5",
                                                   "-",
                                                   "+",
                                                   "."};
        std::string result(oneOf(tame));
        if (oneIn(8))
            result = " " + result + "  ";
        while (spice > 0 && oneIn(8))
            result.append(oneOf(separators)).append(oneOf(tame));
        while (spice > 1 && oneIn(spice == 2 ? 40 : 12))
            result.insert(0, oneOf(odd));
        return result;
    }

    std::string amount() {
        static constexpr std::string_view tame[] = {"", "0", "5", "12.5", "1000", "3.14159", "0.00", "-4"};
        static constexpr std::string_view odd[] = {"ten",
                                                   "1..2",
                                                   "5@x",
                                                   "1\\2",
                                                   "||",
                                                   "1$$2",
                                                   "'",
                                                   "1,000",
                                                   "&",
                                                   " ",
                                                   "\xC2\xA3"
                                                   "5",
                                                   "1e2"};
        return std::string(spice > 1 && oneIn(40) ? oneOf(odd) : oneOf(tame));
    }

    void fillParticulars(Form& form) {
        for (Control* control : form.controls()) {
            const std::string& name = control->name();
            if (name.ends_with("Val") || name == "txtDocChkList" || name == "txtPayDetail" || name == "txtPathNm")
                continue;  // carriers
            if (auto* box = dynamic_cast<TextBox*>(control)) {
                if (!oneIn(4))
                    box->setText(name.ends_with("Area") && !oneIn(6) ? std::to_string(below(40000)) : text());
            } else if (auto* option = dynamic_cast<OptionButton*>(control)) {
                if (oneIn(2))
                    world.proposal.screen.event([&] { option->setValue(!oneIn(6)); });
            } else if (auto* list = dynamic_cast<ComboBox*>(control)) {
                if (!oneIn(8))
                    list->setListIndex(static_cast<int>(below(static_cast<std::uint64_t>(list->listCount()))));
            } else if (auto* picker = dynamic_cast<DatePicker*>(control)) {
                picker->setDate({static_cast<int>(1900 + below(200)), static_cast<int>(1 + below(12)),
                                 static_cast<int>(1 + below(28))});
            }
        }
    }

    void fillChecklist(std::string_view form, int rows) {
        for (int row = 0; row < rows; ++row) {
            // The first row of the conditional list runs into the last mandatory one, which then lacks its first page.
            if (!oneIn(rows == 14 && row == 0 ? 20 : 3))
                continue;
            for (const int page : {2 * row, 2 * row + 1})
                world.box(form, "txtDocPageNo(" + std::to_string(page) + ")")
                    .setText(spice > 1 && oneIn(20) ? " 7-8 " : std::to_string(1 + below(200)));
        }
    }

    void fillPayment() {
        static constexpr std::string_view banks[] = {"Bank", " Sahakari Bank ", "77", "", "a~b", "C:\\bank", "a||b"};
        static constexpr std::string_view modes[] = {"OptCash", "OptCheque", "OptCheque", "OptDraft"};
        Form& form = *world.proposal.forms.touch("frmPayDetail");
        form.forEach<TextBox>([this](TextBox& box) {
            if (!oneIn(3))
                world.proposal.screen.event([&] { box.setText(amount()); });
        });
        for (const std::string_view box : {"txtChqDraftNo", "txtBankNm", "txtBranchNm"})
            world.box("frmPayDetail", box).setText(oneOf(banks));
        world.option("frmPayDetail", oneOf(modes)).setValue(true);
        world.control<DatePicker>("frmPayDetail", "DTPicker1").setDate({2024, 2, static_cast<int>(1 + below(29))});
    }

    World& world;
    std::mt19937_64 engine;
    int spice;
};

/// Saves the proposal of the world as a new file; nothing when a form refuses it.
std::optional<std::string> save(World& world, const std::string& path) {
    world.ports.dialogs.answers = {path};
    world.proposal.screen.event([&] { world.shell.run("mnuSaveAs_Click"); });
    const auto file = world.ports.files.contents.find(path);
    return file == world.ports.files.contents.end() ? std::nullopt : std::optional(file->second);
}

std::string beforeLandRecords(const std::string& file) {
    return file.substr(0, file.find("<NTS>"));
}

/// Where two texts part, with what stands around there.
std::string difference(const std::string& found, const std::string& expected) {
    const auto at = static_cast<std::size_t>(
        std::mismatch(found.begin(), found.end(), expected.begin(), expected.end()).first - found.begin());
    const std::size_t from = at < 80 ? 0 : at - 80;
    return "found    " + found.substr(from, 200) + "\nexpected " + expected.substr(from, 200);
}

enum class Outcome { Refused, NoRoot, SecondRefused, Compared };

Outcome roundTrip(const ScratchFolder& folder, std::uint64_t seed) {
    World first;
    first.shell.press("mnuNew");
    RandomProposal(first, seed).fill();
    const std::optional<std::string> file = save(first, "/home/first.xml");
    if (!file)
        return Outcome::Refused;
    const Prediction expected = predict(*file, {1, 2, 11}, first.ports.clock.day.text());

    World second;
    const std::string path = folder.write("first.xml", *file);
    second.ports.dialogs.answers = {path};
    second.shell.press("mnuOpen");
    EXPECT_EQ(second.ports.dialogs.take(), expected.boxes) << "boxes of the opening, seed " << seed;
    const std::optional<std::string> again = save(second, "/home/second.xml");
    EXPECT_EQ(again.has_value(), expected.file.has_value()) << "seed " << seed;
    if (!again || !expected.file)
        return Outcome::SecondRefused;
    const std::string found = beforeLandRecords(*again);
    const std::string wanted = toCodePage(*expected.file, systemCodePage());
    EXPECT_TRUE(found == wanted) << "seed " << seed << "\n" << difference(found, wanted);
    return expected.boxes.size() >= 178 ? Outcome::NoRoot : Outcome::Compared;
}

}  // namespace

TEST(RoundTrip, theSecondFileIsWhatTheRulesForetellFromTheFirst) {
    const char* one = std::getenv("PLANDESK_ROUND_TRIP_SEED");
    const char* many = std::getenv("PLANDESK_ROUND_TRIPS");
    const int rounds = one ? 1 : many ? std::atoi(many) : usualRounds;
    std::uint64_t seed = one ? std::strtoull(one, nullptr, 10) : std::random_device{}();
    std::cout << "seeds from " << seed << std::endl;
    const ScratchFolder folder;
    std::map<Outcome, int> outcomes;
    int files = 0;
    for (; files < rounds && !HasFailure(); ++seed) {
        const Outcome outcome = roundTrip(folder, seed);
        ++outcomes[outcome];
        files += outcome == Outcome::Compared || outcome == Outcome::NoRoot || one ? 1 : 0;
    }
    std::cout << files << " second files compared, " << outcomes[Outcome::NoRoot]
              << " of them after a file without a root; " << outcomes[Outcome::SecondRefused]
              << " refused the second time, " << outcomes[Outcome::Refused] << " the first time" << std::endl;
}

}  // namespace plandesk::test
