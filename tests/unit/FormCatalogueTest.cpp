#include "shell/FormCatalogue.h"

#include <algorithm>
#include <set>

#include <gtest/gtest.h>

#include "unit/Sources.h"
#include "unit/World.h"

namespace plandesk::test {
namespace {

using Names = std::set<std::string, IgnoringCase>;

Names catalogued() {
    Names names;
    for (const FormRow& row : formCatalogue())
        names.insert(std::string(row.name));
    return names;
}

TEST(FormCatalogue, EachFormHasOneRow) {
    EXPECT_EQ(catalogued().size(), formCatalogue().size());
}

TEST(FormCatalogue, EveryFormClassIsMadeByItsRow) {
    World world;
    const auto classes = inSources(PLANDESK_SOURCES, R"re(formName = "(\w+)")re");
    EXPECT_GE(classes.size(), 11U);
    for (const auto& [name, file] : classes)
        EXPECT_TRUE(world.proposal.forms.known(name)) << name << " of " << file << " is made by no row";
}

TEST(FormCatalogue, EachRowMakesTheFormOfItsName) {
    World world;
    for (const FormRow& row : formCatalogue())
        EXPECT_EQ(row.make(world.proposal)->name(), row.name);
}

TEST(FormCatalogue, EveryFormNamedInTheSourcesIsInTheCatalogue) {
    World world;
    Names known = catalogued();
    for (const FormRow& row : formCatalogue())  // frames have such names too
        for (const Control* control : world.proposal.forms.touch(row.name)->controls())
            known.insert(control->name());
    const auto named = inSources(PLANDESK_SOURCES, R"re("((?:frm|AnnexureAC)\w+)")re");
    EXPECT_GE(named.size(), 20U);
    for (const auto& [name, file] : named)
        EXPECT_TRUE(known.contains(name)) << name << " of " << file;
}

TEST(FormCatalogue, NewUnloadsTheFormsInTheOrderOfTheDescription) {
    std::vector<std::string_view> dropped;
    for (const FormRow& row : formCatalogue())
        if (row.droppedByNew)
            dropped.push_back(row.name);
    EXPECT_EQ(dropped, (std::vector<std::string_view>{
                           "AnnexureACont", "frmAnnexureA", "frmbuildingcompletioncertificate",
                           "frmcompletionuptoplinthlevel", "frmDocCheckList", "frmforpartoccupancycertificate",
                           "frmMain712", "frmNaOrder", "frmnoticeofcommencementofwork", "frmofsupervision",
                           "frmPayDetail", "frmPlotExtractRelation", "frmPRCEXT", "frmScrutinyULC",
                           "frmtdrfortransferringownership", "frmULC20aDetails", "frmUS22", "frmUS84"}));
}

TEST(FormCatalogue, EveryFormOpens) {
    for (const FormRow& row : formCatalogue()) {
        World world;
        world.proposal.commands.open(row.name);
        const Form* form = world.proposal.forms.loaded(row.name);
        EXPECT_TRUE(form && form->front()) << row.name;
        EXPECT_TRUE(world.ports.dialogs.take().empty()) << row.name;
    }
}

}  // namespace
}  // namespace plandesk::test
