#include "tests/layers/layer_check.h"

#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace {

using Faults = std::vector<std::string>;

TEST(Layers, EveryIncludeOfTheThreeHousesKeepsToTheTable)
{
    std::ifstream file(RADSEL_LAYERS);
    std::ostringstream table;
    table << file.rdbuf();
    ASSERT_NE(table.str().find("src/platform"), std::string::npos);
    EXPECT_EQ(FindLayerFaults(RADSEL_SOURCE_DIR, table.str()), Faults());
}

TEST(Layers, FaultsAreNamedWithFileLineAndRule)
{
    const CTempFolder tree;
    const std::string table = "src/low toolkit=none\n"
                              "src/kit toolkit=inside src/low\n"
                              "src/high toolkit=none src/kit\n"
                              "src/high/dialog toolkit=none src/high\n"
                              "app toolkit=open src/low\n";
    tree.WriteBytes("src/low/a.h", "#pragma once\n#include \"high/b.h\"\n");
    tree.WriteBytes("src/kit/k.h", "class QWidget;\n#include \"low/a.h\"\n/// A QWidget in words.\n"
                                   "#include <QIcon>\n");
    tree.WriteBytes("src/kit/k.cpp", "#include <QWidget>\n");
    tree.WriteBytes("src/kit/native/n.h", "#include <QWidget>\n");
    tree.WriteBytes("src/high/b.h", "#include \"low/a.h\"\n#include <vector>\n");
    tree.WriteBytes("src/high/dialog/d.h", "#include \"high/b.h\"\n#include \"app/main.h\"\n");
    tree.WriteBytes("app/main.h",
                    "#include <QWidget>\n#include \"kit/k.h\"\n#include \"away.h\"\n");
    tree.WriteBytes("src/stray/s.h", "");
    EXPECT_EQ(
        FindLayerFaults(tree.Root(), table),
        Faults({"app/main.h:2: app may not include src/kit", "app/main.h:3: away.h is in no room",
                "src/high/dialog/d.h:2: src/high/dialog may not include app",
                "src/kit/k.h:1: a header of src/kit shows the toolkit",
                "src/kit/k.h:4: a header of src/kit shows the toolkit",
                "src/low/a.h:2: src/low may not include src/high",
                "src/stray/s.h: its folder is no room"}));
}

TEST(Layers, ACircleInTheTableIsAFault)
{
    const CTempFolder tree;
    tree.WriteBytes("src/a/x.h", "");
    const Faults faults = FindLayerFaults(tree.Root(), "src/a toolkit=none src/b\n"
                                                       "src/b toolkit=none src/c\n"
                                                       "src/c toolkit=none src/a\n");
    ASSERT_EQ(faults.size(), 3U);
    EXPECT_EQ(faults[0], "table: src/a uses itself by way of what it uses");
}

} // namespace
