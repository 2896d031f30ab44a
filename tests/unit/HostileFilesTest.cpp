// Files made to crash, to hang or to fill the memory: each ends in the boxes that the rules give, within a second for a
// megabyte and within twenty times the file's size in memory.

#include <atomic>
#include <ctime>
#include <fstream>
#include <functional>
#include <thread>

#include <gtest/gtest.h>
#include <malloc.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "ProposalFile.h"
#include "document/XmlDocument.h"
#include "unit/RandomRounds.h"

namespace plandesk::test {

namespace {

constexpr std::size_t megabyte = 1000 * 1000;
constexpr std::size_t longTag = XmlDocument::longestTag - 100;  // nearly the longest that is taken

/// Counts the boxes and keeps none.
class CountingDialogs : public RecordingDialogs {
public:
    void showMessage(const Message&) override { ++boxes; }
    long boxes = 0;
};

struct Cost {
    double seconds = 0;  ///< of the processor
    double growth = 0;   ///< of the memory at its largest, in bytes
    long boxes = 0;
    bool ended = false;  ///< the opening came to its end
};

double statusKilobytes(std::string_view name) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with(name))
            return std::strtod(line.c_str() + name.size() + 1, nullptr);
    return 0;
}

Cost open(const std::string& path) {
    TestPorts machine;
    machine.files.contents["/program/VILLAGENAMES.txt"] = "Tervale#1#TRV\nBalundi#2#BLN\n";
    CountingDialogs dialogs;
    Proposal proposal({dialogs, machine.clock, machine.files, machine.program});
    mdiInterface shell(proposal);
    malloc_trim(0);
    const double before = statusKilobytes("VmRSS:");
    const std::clock_t start = std::clock();
    dialogs.answers = {path};
    shell.press("mnuOpen");
    Cost cost;
    cost.seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    cost.growth = (statusKilobytes("VmHWM:") - before) * 1024;
    cost.boxes = dialogs.boxes;
    cost.ended = proposal.screen.caption() == path;
    return cost;
}

/// What opening the file costs, in a process of its own.
Cost costOfOpening(const std::string& path) {
    int ends[2];
    if (pipe(ends) != 0)
        throw std::runtime_error("no pipe");
    // What the tests before have freed would else be part of the process's largest size from its beginning.
    malloc_trim(0);
    const pid_t child = fork();
    if (child == 0) {
        const Cost cost = open(path);
        const bool told = write(ends[1], &cost, sizeof cost) == sizeof cost;
        _exit(told ? 0 : 1);
    }
    close(ends[1]);
    Cost cost;
    const bool heard = read(ends[0], &cost, sizeof cost) == sizeof cost;
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    return heard && status == 0 ? cost : Cost();
}

std::string repeated(std::string_view text, std::size_t size) {
    std::string all;
    while (all.size() + text.size() <= size)
        all += text;
    return all;
}

std::string numbered(std::string_view before, std::string_view behind, std::size_t size) {
    std::string all;
    for (int i = 0; all.size() < size; ++i)
        all.append(before).append(std::to_string(i)).append(behind);
    return all;
}

struct HostileFile {
    const char* name;
    std::function<std::string(std::size_t size)> bytes;
};

std::ostream& operator<<(std::ostream& out, const HostileFile& file) {
    return out << file.name;
}

std::string inRoot(const std::string& content) {
    return "<r>" + content + "</r>";
}

/// As the title, with its section closed and nothing behind it.
std::string inTitle(const std::string& text) {
    return inRoot("<s><t>" + text + "</t></s>");
}

std::string inAnnexureB(const std::string& elements) {
    return inRoot("<ANNEXUREB>" + elements + "</ANNEXUREB>");
}

const HostileFile hostileFiles[] = {
    {"tags", [](std::size_t size) { return inRoot(repeated("<a/>", size)); }},
    {"sections", [](std::size_t size) { return inRoot(repeated("<a><b/></a>", size)); }},
    {"textsAndTags", [](std::size_t size) { return inRoot("<s>" + repeated("a<b/>", size) + "</s>"); }},
    {"distinctNames", [](std::size_t size) { return inRoot(numbered("<a", "/>", size)); }},
    {"deepNesting", [](std::size_t size) { return repeated("<a>", size); }},
    {"attributes", [](std::size_t size) { return "<r" + numbered(" a", "=''", size) + "/>"; }},
    {"tagsOfManyAttributes",
     [](std::size_t size) { return inRoot(repeated("<a" + numbered(" a", "=''", longTag) + "/>", size)); }},
    {"namespaces",
     [](std::size_t size) {
         return "<r" + numbered(" xmlns:a", "='u'", longTag) + ">" + repeated("<a0:a/>", size) + "</r>";
     }},
    {"oneLongName", [](std::size_t size) { return "<" + repeated("a", size) + "/>"; }},
    {"oneLongAttribute", [](std::size_t size) { return "<r a='" + repeated("a", size) + "'/>"; }},
    {"comments", [](std::size_t size) { return inRoot(repeated("<!---->", size)); }},
    {"oneLongComment", [](std::size_t size) { return inRoot("<!--" + repeated("- ", size) + "-->"); }},
    {"instructions", [](std::size_t size) { return inRoot(repeated("<?a?>", size)); }},
    {"characterData", [](std::size_t size) { return inTitle(repeated("<![CDATA[x]]>", size)); }},
    {"oneLongCharacterData", [](std::size_t size) { return inTitle("<![CDATA[" + repeated("]", size) + "]]>"); }},
    {"characterReferences", [](std::size_t size) { return inTitle(repeated("&#65;", size)); }},
    {"openAngles", [](std::size_t size) { return "<r>" + repeated("<", size); }},
    {"closeAngles", [](std::size_t size) { return inTitle(repeated(">", size)); }},
    {"openTags", [](std::size_t size) { return "<r>" + repeated("<a b=\"", size); }},
    {"billionLaughs",
     [](std::size_t) {
         std::string type = "<!DOCTYPE r [<!ENTITY a0 'lol'>";
         for (int i = 1; i < 20; ++i)
             type += "<!ENTITY a" + std::to_string(i) + " '" + repeated("&a" + std::to_string(i - 1) + ";", 50) + "'>";
         return type + "]><r><s><t>&a19;</t></s></r>";
     }},
    {"oneBigEntity",
     [](std::size_t size) {
         return "<!DOCTYPE r [<!ENTITY a '" + repeated("x", longTag) + "'>]>" + inTitle(repeated("&a;", size));
     }},
    {"parameterEntities",
     [](std::size_t) {
         return "<!DOCTYPE r [<!ENTITY % a '" + repeated("<!---->", longTag / 2) + "'>" + repeated("%a;", longTag / 2) +
                "]><r/>";
     }},
    {"entityDeclarations",
     [](std::size_t size) { return "<!DOCTYPE r [" + numbered("<!ENTITY a", " ''>", size) + "]><r/>"; }},
    {"enumeratedAttribute",
     [](std::size_t size) { return "<!DOCTYPE r [<!ATTLIST a b (x" + numbered("|x", "", size) + ") 'x'>]><r/>"; }},
    {"defaultedAttributes",
     [](std::size_t size) {
         return "<!DOCTYPE r [<!ATTLIST a" + numbered(" b", " CDATA 'x'", longTag) + ">]>" +
                inRoot(repeated("<a/>", size));
     }},
    {"atSigns", [](std::size_t size) { return inTitle(repeated("@", size)); }},
    {"numberSigns", [](std::size_t size) { return inTitle(repeated("#", size)); }},
    {"bars", [](std::size_t size) { return inTitle(repeated("|", size)); }},
    {"singleBars", [](std::size_t size) { return inTitle(repeated("|a", size)); }},
    {"backslashes", [](std::size_t size) { return inTitle(repeated("\\", size)); }},
    {"digits", [](std::size_t size) { return inTitle("@@@@@" + repeated("1", size)); }},
    {"listsInEveryField",
     [](std::size_t size) {
         return inRoot("<s>" + repeated("<t>" + repeated("#", size / 30) + "</t>", size) + "</s>");
     }},
    {"checklist",
     [](std::size_t size) { return inRoot(repeated("<s/>", 20) + "<d>" + repeated("1-2-3#", size) + "</d>"); }},
    {"checklistRow",
     [](std::size_t size) { return inRoot(repeated("<s/>", 20) + "<d>" + repeated("-", size) + "</d>"); }},
    {"elementsByName", [](std::size_t size) { return inAnnexureB(repeated("<a/>", size)); }},
    {"textsByName", [](std::size_t size) { return inAnnexureB(repeated("<WhyNot>a</WhyNot><WhyNot/>", size)); }},
    {"optionsByName", [](std::size_t size) { return inAnnexureB(repeated("<IsPlotNarrow/>", size)); }},
    {"answersByName",
     [](std::size_t size) {
         return inAnnexureB(repeated("<IsPlotNarrow>1</IsPlotNarrow><IsPlotNarrow>0</IsPlotNarrow>", size));
     }},
    {"streetsAndTrees",
     [](std::size_t size) { return inAnnexureB(repeated("<Section9a3536>1#2#3#4#5</Section9a3536>", size)); }},
    {"annexures", [](std::size_t size) { return inRoot(repeated("<ANNEXUREB/>", size)); }},
};

class HostileBytes : public testing::TestWithParam<HostileFile> {};

/// Opening `path` came to an end, with all its boxes and none of its content.
void expectHopeless(const std::string& path) {
    Reading reading;
    reading.world.ports.dialogs.answers.push_back(path);
    reading.world.shell.press("mnuOpen");
    EXPECT_EQ(reading.world.ports.dialogs.take(), hopeless()) << path;
    EXPECT_EQ(reading.world.proposal.screen.caption(), path);
}

}  // namespace

TEST_P(HostileBytes, areOpenedInASecondAndInTwentyTimesTheirSize) {
    const ScratchFolder folder;
    const std::string bytes = GetParam().bytes(megabyte);
    const Cost cost = costOfOpening(folder.write("hostile.xml", bytes));
    ASSERT_TRUE(cost.ended);
    if (!sanitized) {
        EXPECT_LT(cost.seconds, 1);
        EXPECT_LT(cost.growth, 20.0 * static_cast<double>(std::max(bytes.size(), megabyte)));
    }
}

INSTANTIATE_TEST_SUITE_P(, HostileBytes, testing::ValuesIn(hostileFiles),
                         [](const auto& file) { return std::string(file.param.name); });

TEST(HostileFile, aFolderHasNoRoot) {
    const ScratchFolder folder;
    expectHopeless(folder.path(""));
    expectHopeless("/");
}

TEST(HostileFile, aDeviceIsNotRead) {
    expectHopeless("/dev/zero");
    expectHopeless("/dev/null");
}

TEST(HostileFile, aPipeIsNotWaitedFor) {
    const ScratchFolder folder;
    ASSERT_EQ(mkfifo(folder.path("pipe.xml").c_str(), 0600), 0);
    expectHopeless(folder.path("pipe.xml"));
}

TEST(HostileFile, aPathThatCannotBeHasNoRoot) {
    const ScratchFolder folder;
    expectHopeless(folder.write("a.xml", "<r/>") + "/b.xml");
    expectHopeless(folder.path(std::string(5000, 'a')));
}

TEST(HostileFile, aLinkToItselfHasNoRoot) {
    const ScratchFolder folder;
    ASSERT_EQ(symlink("loop.xml", folder.path("loop.xml").c_str()), 0);
    expectHopeless(folder.path("loop.xml"));
}

TEST(HostileFile, aNulOrLatinBytesHaveNoRoot) {
    using namespace std::string_literals;
    const ScratchFolder folder;
    const std::string good = ProposalFile().xml();
    for (const std::string& bad : {"a\0b"s, "caf\xE9"s, "\xFF"s})
        expectHopeless(folder.write("a.xml", ProposalFile().set("TITLE", bad).xml()));
    expectHopeless(folder.write("a.xml", good + '\0'));
}

TEST(HostileFile, aProposalOfSixteenBitCharactersIsRead) {
    const std::string text = ProposalFile().set("TITLE", "Bungalow").xml();
    std::string wide = "\xFF\xFE";
    for (const char c : text)
        (wide += c) += '\0';
    Reading reading;
    EXPECT_EQ(reading.open(wide), std::vector<Message>());
    EXPECT_EQ(reading.text("frmAnnexureA", "txtTitle"), "Bungalow");
}

TEST(HostileFile, anExternalEntityBringsNothingIn) {
    const ScratchFolder folder;
    const std::string secret = folder.write("secret", "secret");
    std::string text = ProposalFile().set("TITLE", "a&x;b").xml();
    text.insert(text.find("<INWARDINFO"), "<!DOCTYPE INWARDINFO [<!ENTITY x SYSTEM 'file://" + secret + "'>]>");
    Reading reading;
    EXPECT_EQ(reading.open(text), std::vector<Message>());
    EXPECT_EQ(reading.text("frmAnnexureA", "txtTitle"), "ab");
}

TEST(HostileFile, aFileThatShrinksWhileItIsReadHasNoRoot) {
    const ScratchFolder folder;
    const std::string path = folder.write("a.xml", inRoot(std::string(64 * megabyte, 'x')));
    std::atomic<bool> begun = false;
    std::thread other([&] {
        while (!begun)
            std::this_thread::yield();
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
        ASSERT_EQ(truncate(path.c_str(), 1000), 0);
    });
    XmlDocument document;
    begun = true;
    EXPECT_FALSE(document.load(path));
    EXPECT_EQ(document.root(), XmlDocument::none);
    other.join();
    EXPECT_EQ(std::filesystem::file_size(path), 1000U);
}

TEST(HostileFile, twoHundredMegabytesAreReadInSecondsAndALittleMemory) {
    if (sanitized)
        GTEST_SKIP() << "measures nothing here";
    const ScratchFolder folder;
    const std::string path = folder.path("big.xml");
    std::string text = ProposalFile().xml();
    {
        std::ofstream file(path, std::ios::binary);
        const std::size_t title = text.find("<TITLE>") + 7;
        const std::size_t records = text.find("<NTS>") + 5;
        file << text.substr(0, title);
        for (int i = 0; i < 100; ++i)
            file << std::string(megabyte, 'x');
        file << text.substr(title, records - title);
        const std::string elements = repeated("<a>b</a>", megabyte);
        for (int i = 0; i < 100; ++i)
            file << elements;
        file << text.substr(records);
    }
    const double size = static_cast<double>(std::filesystem::file_size(path));
    ASSERT_GT(size, 200e6);
    const Cost cost = costOfOpening(path);
    ASSERT_TRUE(cost.ended);
    EXPECT_EQ(cost.boxes, 0);
    EXPECT_LT(cost.seconds, 20);
    EXPECT_LT(cost.growth, 20 * size);
    std::cout << cost.seconds << " s, " << cost.growth / size << " times the size" << std::endl;
}

}  // namespace plandesk::test
