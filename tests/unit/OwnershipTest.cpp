#include "landrecords/Ownership.h"

#include "proposal/LandRecordColumns.h"
#include "unit/ExtractsFixture.h"

namespace plandesk::test {
namespace {

struct OwnershipRows : Extracts {};

TEST_F(OwnershipRows, TakeNamesAndAreasAndNumbersPrcsBehind) {
    relate({2});
    relate({1}, true);
    auto& land = open712();
    user::editCell(land.dgdInfoOfExtract, 0, ExtractColumn::NoOfOwners, "2");
    user::editCell(land.dgdInfoOfExtract, 0, ExtractColumn::CumulativeArea, "12.5");
    user::editCell(land.dgdOwner, 0, OwnerColumn::Name, " Sham ");
    user::editCell(land.dgdOwner, 1, OwnerColumn::Name, "Ram");
    auto& cards = openPrc();
    user::editCell(cards.dgdInfoOfExtract, 0, ExtractColumn::NoOfOwners, "1");
    user::editCell(cards.dgdOwner, 0, OwnerColumn::Name, "Sita");
    tables.rsOwnership->setFilter("ExtNo = 2");
    tables.rsOwnership->set("DocStatus", "Yes");
    EXPECT_FALSE(proposal.ownershipRelationSaved);
    user::click(land.cmdSave);
    EXPECT_EQ(rowTexts(*tables.rsOwnership), (Texts{"1|Sham,Ram|12.5|0", "2||0|Yes", "3|Sita|0|0"}));
    EXPECT_EQ(tables.rsOwnership->filter(), "");
    EXPECT_TRUE(proposal.ownershipRelationSaved);
}

TEST_F(OwnershipRows, ThatAreMissingAreAdded) {
    relate({1});
    tables.create(&Tables::rsOwnership);
    user::click(open712().cmdSave);
    EXPECT_EQ(rowTexts(*tables.rsOwnership), Texts{"1||0|0"});
    EXPECT_FALSE(proposal.ownershipRelationSaved);  // there is no PRC
}

TEST_F(OwnershipRows, WithoutA712ExtractPrcsAreNotTakenIntoTheOwnership) {
    relate({2}, true);
    tables.create(&Tables::rsOwnership);
    user::click(openPrc().cmdSave);
    EXPECT_EQ(tables.rsOwnership->rowCount(), 0);
    EXPECT_FALSE(proposal.ownershipRelationSaved);
}

}  // namespace
}  // namespace plandesk::test
