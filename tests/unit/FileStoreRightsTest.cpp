// Who may use a file before and after somebody saved it. Most of it needs several users, which root alone can be.

#include <cerrno>
#include <initializer_list>
#include <optional>
#include <random>

#include <sys/xattr.h>

#include "controls/AccessRights.h"
#include "unit/FileStoreFixture.h"

namespace plandesk {
namespace {

namespace fs = std::filesystem;
using Entry = AccessRights::Entry;
using test::Names;

constexpr std::uint16_t owner = 0x01, user = 0x02, group = 0x04, namedGroup = 0x08, mask = 0x10, others = 0x20;

AccessRights with(std::vector<Entry> entries) {
    AccessRights rights;
    rights.entries = std::move(entries);
    return rights;
}

AccessRights withBits(unsigned bits) {
    const auto rights = [bits](unsigned shift) { return static_cast<std::uint16_t>(bits >> shift & 7U); };
    return with({{owner, rights(6), 0}, {group, rights(3), 0}, {others, rights(0), 0}});
}

TEST(AccessRightsTest, BitsStayAsTheyAreForTheSameOwnerAndGroup) {
    for (const unsigned bits : {0600U, 0640U, 0604U, 0777U, 0U})
        EXPECT_EQ(withBits(bits).narrowed(true, true).bits(), bits);
}

TEST(AccessRightsTest, AnotherGroupAndTheOthersShareWhatBothMayDo) {
    EXPECT_EQ(withBits(0660).narrowed(true, false).bits(), 0600U);
    EXPECT_EQ(withBits(0604).narrowed(true, false).bits(), 0600U);
    EXPECT_EQ(withBits(0664).narrowed(true, false).bits(), 0644U);
}

TEST(AccessRightsTest, AFormerOwnerMayDoNoMoreThanBefore) {
    EXPECT_EQ(withBits(0660).narrowed(false, true).bits(), 0660U);
    EXPECT_EQ(withBits(0466).narrowed(false, true).bits(), 0444U);
}

TEST(AccessRightsTest, SpecialBitsGoWithOwnerAndGroup) {
    AccessRights rights = withBits(0755);
    rights.special = 06000;
    EXPECT_EQ(rights.narrowed(true, true).bits(), 06755U);
    EXPECT_EQ(rights.narrowed(false, true).bits(), 0755U);
    EXPECT_EQ(rights.narrowed(true, false).bits(), 0755U);
}

TEST(AccessRightsTest, TheMaskStandsInTheBitsOfAListAndIsNotGivenToTheGroupWithoutIt) {
    const AccessRights rights = with({{owner, 6, 0}, {user, 6, 7}, {group, 4, 0}, {mask, 6, 0}, {others, 4, 0}});
    EXPECT_TRUE(rights.hasList());
    EXPECT_EQ(rights.bits(), 0664U);
    EXPECT_FALSE(rights.withoutList().hasList());
    EXPECT_EQ(rights.withoutList().bits(), 0644U);
}

TEST(AccessRightsTest, WhomTheListRefusedIsRefusedWithoutItToo) {
    const AccessRights rights = with({{owner, 6, 0}, {user, 0, 7}, {group, 6, 0}, {mask, 6, 0}, {others, 4, 0}});
    EXPECT_EQ(rights.withoutList().bits(), 0600U);
}

/// Owners and groups of the tests, none of them anybody's on the machine.
constexpr uid_t ann = 60001, ben = 60002, eve = 60003;
constexpr gid_t office = 61000, annsOwn = 61001, bensOwn = 61002, evesOwn = 61003;

class FileStoreRightsTest : public test::FileStoreFixture {
protected:
    FileStoreRightsTest() : FileStoreFixture(test::placeInMemory()) {}
    void SetUp() override {
        if (geteuid() != 0)
            GTEST_SKIP() << "only root can be several users";
        ASSERT_EQ(chmod(folder.c_str(), 0777), 0);
    }
    void belongTo(uid_t owner, gid_t group, mode_t bits) {
        put(path, "old");
        ASSERT_EQ(chown(path.c_str(), owner, group), 0);
        ASSERT_EQ(chmod(path.c_str(), bits), 0);
    }
    static bool setList(const fs::path& file, const std::vector<Entry>& entries) {
        const std::string list = with(entries).list();
        return setxattr(file.c_str(), "system.posix_acl_access", list.data(), list.size(), 0) == 0;
    }
    int savedBy(const User& saver) {
        return as(saver, [this] { return failureOf(path); });
    }
    bool mayRead(const User& reader) {
        return as(reader, [this] { return access(path.c_str(), R_OK) == 0 ? 0 : 1; }) == 0;
    }
    bool mayWrite(const User& writer) {
        return as(writer, [this] { return access(path.c_str(), W_OK) == 0 ? 0 : 1; }) == 0;
    }
};

TEST_F(FileStoreRightsTest, AMemberOfTheGroupLeavesTheFileToTheGroup) {
    belongTo(ann, office, 0660);
    EXPECT_EQ(savedBy({ben, {bensOwn, office}}), 0);
    EXPECT_EQ(contents(path), "new");
    EXPECT_EQ(looked(path).st_uid, ben) << "nobody but root can give a file away";
    EXPECT_EQ(looked(path).st_gid, office);
    EXPECT_EQ(mode(path), 0660U);
    EXPECT_TRUE(mayWrite({ann, {annsOwn, office}}));
}

TEST_F(FileStoreRightsTest, RootKeepsOwnerGroupAndBits) {
    belongTo(ann, office, 06750);
    EXPECT_EQ(failureOf(path), 0);
    EXPECT_EQ(looked(path).st_uid, ann);
    EXPECT_EQ(looked(path).st_gid, office);
    EXPECT_EQ(mode(path), 06750U);
}

TEST_F(FileStoreRightsTest, AStrangersFileIsNotOpenedToTheSaversGroup) {
    belongTo(ann, office, 0666);
    ASSERT_EQ(chmod(path.c_str(), 0606), 0);
    EXPECT_EQ(savedBy({ben, {bensOwn}}), 0);
    EXPECT_EQ(looked(path).st_gid, bensOwn);
    EXPECT_EQ(mode(path), 0600U) << "the office was refused before";
}

TEST_F(FileStoreRightsTest, AnAccessListStaysAndItsMaskDoesNotBecomeTheGroupsRights) {
    belongTo(ann, office, 0600);
    const std::vector<Entry> list = {{owner, 6, 0}, {user, 6, ben}, {group, 0, 0}, {mask, 6, 0}, {others, 0, 0}};
    if (!setList(path, list))
        GTEST_SKIP() << "this file system has no access lists";
    const std::string before = AccessRights::of(path).list();
    for (const bool asRoot : {true, false}) {
        EXPECT_EQ(asRoot ? failureOf(path) : savedBy({ann, {annsOwn, office}}), 0);
        EXPECT_EQ(AccessRights::of(path).list(), before);
        EXPECT_EQ(looked(path).st_uid, ann);
        EXPECT_EQ(looked(path).st_gid, office);
        EXPECT_TRUE(mayWrite({ben, {bensOwn}}));
        EXPECT_FALSE(mayRead({eve, {evesOwn, office}}));
    }
}

TEST_F(FileStoreRightsTest, AListThatTheFolderGivesToNewFilesIsNotGivenToAnEarlierOne) {
    const std::vector<Entry> list = {{owner, 7, 0}, {user, 6, eve}, {group, 6, 0}, {mask, 7, 0}, {others, 0, 0}};
    const std::string bytes = with(list).list();
    belongTo(ann, office, 0660);
    if (setxattr(folder.c_str(), "system.posix_acl_default", bytes.data(), bytes.size(), 0) != 0)
        GTEST_SKIP() << "this file system has no access lists";
    EXPECT_EQ(savedBy({ben, {bensOwn, office}}), 0);
    EXPECT_FALSE(AccessRights::of(path).hasList());
    EXPECT_EQ(mode(path), 0660U);
    EXPECT_FALSE(mayRead({eve, {evesOwn}}));
}

TEST_F(FileStoreRightsTest, NobodyButTheSaverMayDoMoreThanBefore) {
    const std::vector<User> people = {{ann, {annsOwn}},         {ann, {annsOwn, office}}, {ben, {bensOwn}},
                                      {ben, {bensOwn, office}}, {eve, {evesOwn}},         {eve, {evesOwn, office}},
                                      {eve, {evesOwn, bensOwn}}};
    std::minstd_rand chance(20240315);
    const auto rights = [&] { return static_cast<std::uint16_t>(chance() % 4 * 2); };
    int saves = 0;
    for (int round = 0; round < 60; ++round) {
        belongTo(ann, office, 0600);
        std::vector<Entry> list = {{owner, rights(), 0}, {group, rights(), 0}, {others, rights(), 0}};
        if (round % 3 != 0)
            list = {{owner, rights(), 0}, {user, rights(), round % 2 == 0 ? ben : eve},
                    {group, rights(), 0}, {namedGroup, rights(), round % 2 == 0 ? evesOwn : bensOwn},
                    {mask, rights(), 0},  {others, rights(), 0}};
        if (!setList(path, list))
            GTEST_SKIP() << "this file system has no access lists";
        std::vector<bool> before;
        for (const User& person : people) {
            before.push_back(mayRead(person));
            before.push_back(mayWrite(person));
        }
        const User& saver = people[chance() % people.size()];
        if (savedBy(saver) != 0)
            continue;
        ++saves;
        auto could = before.begin();
        for (const User& person : people) {
            const bool saved = person.id == saver.id;
            const bool couldRead = *could++;
            const bool couldWrite = *could++;
            EXPECT_TRUE(saved || couldRead || !mayRead(person)) << "round " << round << ", " << person.id;
            EXPECT_TRUE(saved || couldWrite || !mayWrite(person)) << "round " << round << ", " << person.id;
        }
    }
    EXPECT_GT(saves, 10);
}

TEST_F(FileStoreRightsTest, ARefusedSaveInAStickyFolderLeavesNothingBehind) {
    ASSERT_EQ(chmod(folder.c_str(), 01777), 0);
    belongTo(ann, annsOwn, 0666);
    for (int attempt = 0; attempt < 3; ++attempt)
        EXPECT_EQ(savedBy({ben, {bensOwn}}), 70);
    EXPECT_EQ(contents(path), "old");
    EXPECT_EQ(names(), Names{"proposal.xml"});
    EXPECT_EQ(savedBy({ann, {annsOwn}}), 0);
    EXPECT_EQ(contents(path), "new");
}

TEST_F(FileStoreRightsTest, AStrangersLinkInAStickyFolderIsRefused) {
    const fs::path target = folder / "target.xml";
    put(target, "old");
    ASSERT_EQ(chmod(target.c_str(), 0666), 0);
    fs::create_symlink("target.xml", path);
    ASSERT_EQ(lchown(path.c_str(), eve, evesOwn), 0);
    ASSERT_EQ(chmod(folder.c_str(), 01777), 0);
    EXPECT_EQ(failureOf(path), 70) << "root's";
    EXPECT_EQ(savedBy({ben, {bensOwn}}), 70);
    EXPECT_EQ(contents(target), "old");

    // Of the folder's owner it is taken, and in a folder that is not everybody's.
    ASSERT_EQ(chown(folder.c_str(), eve, evesOwn), 0);
    EXPECT_EQ(failureOf(path, "1"), 0);
    ASSERT_EQ(chown(folder.c_str(), ann, annsOwn), 0);
    EXPECT_EQ(failureOf(path), 70);
    ASSERT_EQ(chmod(folder.c_str(), 0777), 0);
    EXPECT_EQ(failureOf(path, "2"), 0);
    EXPECT_EQ(contents(target), "2");
}

TEST_F(FileStoreRightsTest, AUsersOwnLinkInAStickyFolderIsFollowed) {
    ASSERT_EQ(chmod(folder.c_str(), 01777), 0);
    const fs::path target = folder / "target.xml";
    put(target, "old");
    ASSERT_EQ(chown(target.c_str(), ben, bensOwn), 0);
    fs::create_symlink("target.xml", path);
    ASSERT_EQ(lchown(path.c_str(), ben, bensOwn), 0);
    EXPECT_EQ(savedBy({ben, {bensOwn}}), 0);
    EXPECT_EQ(contents(target), "new");
}

class FileStoreAttributesTest : public test::FileStoreFixture {};

TEST_F(FileStoreAttributesTest, ExtendedAttributesComeAlong) {
    put(path, "old");
    if (setxattr(path.c_str(), "user.note", "seen", 4, 0) != 0 || setxattr(path.c_str(), "user.empty", "", 0, 0) != 0)
        GTEST_SKIP() << "this file system has no attributes";
    EXPECT_EQ(failureOf(path), 0);
    char value[10] = {};
    EXPECT_EQ(getxattr(path.c_str(), "user.note", value, sizeof value), 4);
    EXPECT_STREQ(value, "seen");
    EXPECT_EQ(getxattr(path.c_str(), "user.empty", value, sizeof value), 0);
}

}  // namespace
}  // namespace plandesk
