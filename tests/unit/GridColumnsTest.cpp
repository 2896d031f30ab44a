// Every grid of every form names all the columns of its table.

#include "unit/ExtractsFixture.h"

namespace plandesk::test {
namespace {

/// Columns that a grid shows under the table's own names, since its settings end before them.
Texts unnamed(const Grid& grid) {
    Texts names;
    for (int place = 0; place < grid.columnCount(); ++place) {
        const GridColumn column = grid.column(place);
        const std::string_view name = grid.table()->columns()[static_cast<std::size_t>(place)].name;
        if (column.caption == name && column.width == GridColumn().width)
            names.push_back(grid.form().name() + "." + grid.name() + ": " + std::string(name));
    }
    return names;
}

TEST_F(Extracts, GridsNameEveryColumnOfTheirTables) {
    relate({1});
    relate({1}, true);
    open712();
    openPrc();
    int grids = 0;
    for (const std::string& name : proposal.forms.names()) {
        proposal.forms.touch(name)->forEach<Grid>([&grids](Grid& grid) {
            if (!grid.table())
                return;
            ++grids;
            EXPECT_EQ(unnamed(grid), Texts());
        });
    }
    EXPECT_EQ(grids, 10);  // two of plots, three of each family's extracts, one of each order that has rows

    proposal.forms.get<frmMain712>().dgdOwner.setColumns({});
    EXPECT_EQ(unnamed(proposal.forms.get<frmMain712>().dgdOwner).size(), 6u);
}

}  // namespace
}  // namespace plandesk::test
