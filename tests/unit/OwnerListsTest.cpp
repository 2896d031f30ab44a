#include "landrecords/OwnerLists.h"

#include "proposal/LandRecordColumns.h"
#include "unit/ExtractsFixture.h"

namespace plandesk::test {
namespace {

struct Owners : Extracts {
    frmMain712& form = (relate({1}), open712());
    Owners() { user::editCell(form.dgdInfoOfExtract, 0, ExtractColumn::NoOfOwners, "3"); }
    std::string cell(int row, int column) { return form.dgdOwner.cellText(row, column); }
};

TEST_F(Owners, AClickPlacesTheListAndLeavingItWritesTheChoice) {
    user::clickCell(form.dgdOwner, 0, OwnerColumn::SingingStatus);
    EXPECT_TRUE(form.cmbOwnSingingStatus.visible());
    EXPECT_TRUE(form.cmbOwnSingingStatus.focused());
    EXPECT_EQ(form.dgdOwner.floating(form.cmbOwnSingingStatus).column, OwnerColumn::SingingStatus);
    user::pick(form.cmbOwnSingingStatus, 1);
    EXPECT_EQ(cell(0, OwnerColumn::SingingStatus), " -- Select -- ");
    user::leave(form.cmbOwnSingingStatus);
    EXPECT_EQ(cell(0, OwnerColumn::SingingStatus), "Signed");
    user::pressCellButton(form.dgdOwner, 1, OwnerColumn::Encumbrances);
    EXPECT_TRUE(form.cmbEncumber.focused());
    EXPECT_FALSE(form.cmbOwnSingingStatus.visible());
    EXPECT_EQ(form.cmbEncumber.listIndex(), 0);  // blanks around the text do not count
    user::pick(form.cmbEncumber, 5);
    user::focus(form.txtRemark);
    EXPECT_EQ(cell(1, OwnerColumn::Encumbrances), "For Govt. matter");
}

TEST_F(Owners, AListLeftWithoutAChoiceWritesItsEmptyText) {
    user::clickCell(form.dgdOwner, 0, OwnerColumn::SingingStatus);
    user::leave(form.cmbOwnSingingStatus);
    EXPECT_EQ(cell(0, OwnerColumn::SingingStatus), "");
}

TEST_F(Owners, OnACellChangeBothListsTakeTheItemsOfTheNewRow) {
    user::editCell(form.dgdOwner, 1, OwnerColumn::SingingStatus, "PAH Given");
    user::editCell(form.dgdOwner, 1, OwnerColumn::Encumbrances, "WATAN");
    user::editCell(form.dgdOwner, 2, OwnerColumn::SingingStatus, "Signed");
    user::editCell(form.dgdOwner, 2, OwnerColumn::Encumbrances, "Easement");
    user::goToCell(form.dgdOwner, 1, OwnerColumn::Name);
    EXPECT_EQ(form.cmbOwnSingingStatus.listIndex(), 2);
    EXPECT_EQ(form.cmbEncumber.listIndex(), 8);
    EXPECT_FALSE(form.cmbOwnSingingStatus.visible());
    EXPECT_FALSE(form.cmbEncumber.visible());
    user::goToCell(form.dgdOwner, 2, OwnerColumn::Name);
    EXPECT_EQ(form.cmbOwnSingingStatus.listIndex(), 1);
    EXPECT_EQ(form.cmbEncumber.listIndex(), 9);
    EXPECT_EQ(form.cmbOwnType.listIndex(), -1);
}

TEST_F(Owners, ALetterOpensTheListAndChoosesByIt) {
    user::goToCell(form.dgdOwner, 0, OwnerColumn::SingingStatus);
    user::press(form.dgdOwner, "s");
    EXPECT_TRUE(form.cmbOwnSingingStatus.focused());
    EXPECT_FALSE(form.dgdOwner.editing());
    user::press(form.cmbOwnSingingStatus, "Tab");
    EXPECT_EQ(cell(0, OwnerColumn::SingingStatus), "Signed");
    EXPECT_EQ(form.dgdOwner.currentColumn(), OwnerColumn::Encumbrances);
    for (const char* key : {"F", "f", "F"}) {
        user::press(form.dgdOwner.focused() ? static_cast<Control&>(form.dgdOwner) : form.cmbEncumber, key);
    }
    user::press(form.cmbEncumber, "Tab");
    EXPECT_EQ(cell(0, OwnerColumn::Encumbrances), "fOR Govt EWS");
    user::goToCell(form.dgdOwner, 1, OwnerColumn::Encumbrances);
    user::press(form.dgdOwner, "x");
    user::press(form.cmbEncumber, "Enter");
    EXPECT_EQ(cell(1, OwnerColumn::Encumbrances), "----------- Select----------");
}

TEST_F(Owners, NothingButItemsIsPastedOrTypedIntoACellOfAList) {
    user::goToCell(form.dgdOwner, 0, OwnerColumn::SingingStatus);
    EXPECT_FALSE(user::editText(form.dgdOwner, "S"));
    EXPECT_FALSE(user::editText(form.dgdOwner, ""));
    user::press(form.dgdOwner, "Backspace");
    EXPECT_FALSE(user::clearCell(form.dgdOwner));
    EXPECT_FALSE(form.dgdOwner.editing());
    EXPECT_EQ(cell(0, OwnerColumn::SingingStatus), " -- Select -- ");
    EXPECT_TRUE(user::editText(form.dgdOwner, " signed "));
    EXPECT_EQ(cell(0, OwnerColumn::SingingStatus), "Signed");
    EXPECT_EQ(form.cmbOwnSingingStatus.listIndex(), 1);
    user::goToCell(form.dgdOwner, 0, OwnerColumn::Encumbrances);
    EXPECT_TRUE(user::editText(form.dgdOwner, "BANK LOAN"));
    EXPECT_EQ(cell(0, OwnerColumn::Encumbrances), "Bank Loan");
}

TEST_F(Owners, AChoiceLeftOverFromAnotherRowIsWritten) {
    user::clickCell(form.dgdOwner, 0, OwnerColumn::SingingStatus);
    user::pick(form.cmbOwnSingingStatus, 1);
    user::clickCell(form.dgdOwner, 1, OwnerColumn::SingingStatus);
    EXPECT_EQ(cell(0, OwnerColumn::SingingStatus), "Signed");
    EXPECT_EQ(form.cmbOwnSingingStatus.listIndex(), 1);
    user::leave(form.cmbOwnSingingStatus);
    EXPECT_EQ(cell(1, OwnerColumn::SingingStatus), "Signed");
}

TEST_F(Owners, AMoveOfTheCellPlacesTheListWithoutTheFocus) {
    user::clickCell(form.dgdOwner, 0, OwnerColumn::SingingStatus);
    user::pick(form.cmbOwnSingingStatus, 1);
    user::goToCell(form.dgdOwner, 1, OwnerColumn::SingingStatus);
    EXPECT_TRUE(form.cmbOwnSingingStatus.visible());
    EXPECT_TRUE(form.dgdOwner.focused());
    EXPECT_EQ(form.dgdOwner.floating(form.cmbOwnSingingStatus).row, 1);
    user::focus(form.txtRemark);
    EXPECT_EQ(cell(1, OwnerColumn::SingingStatus), " -- Select -- ");
    user::goToCell(form.dgdOwner, 1, OwnerColumn::Encumbrances);
    EXPECT_FALSE(form.cmbOwnSingingStatus.visible());
    EXPECT_TRUE(form.cmbEncumber.visible());
}

TEST_F(Owners, AChoiceThatTheUserMakesInAPlacedListIsWritten) {
    user::goToCell(form.dgdOwner, 1, OwnerColumn::SingingStatus);
    user::pick(form.cmbOwnSingingStatus, 2);
    user::press(form.cmbOwnSingingStatus, "Tab");
    EXPECT_EQ(cell(1, OwnerColumn::SingingStatus), "PAH Given");
    EXPECT_TRUE(form.dgdOwner.focused());
    EXPECT_EQ(form.dgdOwner.currentColumn(), OwnerColumn::Encumbrances);
}

TEST_F(Owners, EncumbrancesAreFoundInAnyCase) {
    user::editCell(form.dgdOwner, 0, OwnerColumn::Encumbrances, " WATAN ");
    user::clickCell(form.dgdOwner, 0, OwnerColumn::Encumbrances);
    EXPECT_EQ(form.cmbEncumber.listIndex(), 8);
    user::editCell(form.dgdOwner, 0, OwnerColumn::SingingStatus, "signed");
    user::clickCell(form.dgdOwner, 0, OwnerColumn::SingingStatus);
    EXPECT_EQ(form.cmbOwnSingingStatus.listIndex(), -1);
}

TEST_F(Owners, NoListIsPlacedWhileABlockIsBuilt) {
    proposal.isSavingLandRecord = true;
    user::goToCell(form.dgdOwner, 1, OwnerColumn::SingingStatus);
    EXPECT_FALSE(form.cmbOwnSingingStatus.visible());
}

TEST_F(Owners, TheOwnerTypeIsOutOfReach) {
    EXPECT_FALSE(user::clickCell(form.dgdOwner, 0, OwnerColumn::OwnerType));
    EXPECT_FALSE(user::editCell(form.dgdOwner, 0, OwnerColumn::OwnerType, "H - Holder"));
}

struct PrcOwners : Extracts {};

TEST_F(PrcOwners, TheOwnerTypeOfAPrcIsChosenFromItsList) {
    relate({1}, true);
    auto& form = openPrc();
    user::editCell(form.dgdInfoOfExtract, 0, ExtractColumn::NoOfOwners, "2");
    user::goToCell(form.dgdOwner, 0, OwnerColumn::OwnerType);
    EXPECT_TRUE(form.cmbOwnType.visible());
    user::clickCell(form.dgdOwner, 0, OwnerColumn::OwnerType);
    EXPECT_EQ(form.cmbOwnType.listIndex(), 0);
    user::pick(form.cmbOwnType, 2);
    user::leave(form.cmbOwnType);
    EXPECT_EQ(form.dgdOwner.cellText(0, OwnerColumn::OwnerType), "L - Lease");
}

TEST_F(PrcOwners, TheOwnerTypeIsWrittenWithoutALookWhetherThereIsARow) {
    relate({1}, true);
    auto& form = openPrc();
    user::editCell(form.dgdInfoOfExtract, 0, ExtractColumn::NoOfOwners, "1");
    user::clickCell(form.dgdOwner, 0, OwnerColumn::OwnerType);
    user::pick(form.cmbOwnType, 2);
    form.addOwner(0);
    user::leave(form.cmbOwnType);
    EXPECT_EQ(ports.dialogs.take().size(), 1U);
}

TEST_F(Owners, AStatusListLeftWhenItsRowIsGoneWritesNothing) {
    user::clickCell(form.dgdOwner, 0, OwnerColumn::SingingStatus);
    user::pick(form.cmbOwnSingingStatus, 1);
    form.addOwner(0);
    user::leave(form.cmbOwnSingingStatus);
    EXPECT_TRUE(ports.dialogs.take().empty());
    EXPECT_EQ(tables.rsOwner712->rowCount(), 0);
}

}  // namespace
}  // namespace plandesk::test
