#include "tests/support/setting_override.h"
#include "tests/workbench/batch/batch_fixture.h"
#include "workbench/building/building_json.h"
#include "workbench/dxf/dxf_blocks.h"
#include "workbench/program/workbench_program.h"

#include <QJsonDocument>

using namespace reference_host;

namespace workbench {

namespace {

class BatchTest : public CBatchFixture
{
protected:
    BatchTest() : CBatchFixture(GetWorkbench()) {}
};

} // namespace

TEST_F(BatchTest, ThePlanIsDrawnAndTheBuildingKeptWithItsRadiators)
{
    ASSERT_EQ(Run({L"--save", m_folder.Path("casa.json")}), ExitCode::ok) << m_err.str();
    EXPECT_EQ(m_folder.ReadBytes("out/progetto.pdf").substr(0, 5), "%PDF-");
    const auto plan = ReadDxfFile(m_folder.Path("out/pianta.dxf"));
    EXPECT_TRUE(std::holds_alternative<CDxfDrawing>(plan));
    const CBuilding kept = ReadBuilding(m_folder.Path("casa.json"));
    ASSERT_EQ(kept.floors[0].rooms[1]->heizkoerper.size(), 1u);

    // The schedule of the kept building tells the radiators that stand in it.
    const auto radiator = [this] {
        const std::string bytes = m_folder.ReadBytes("out/corpi-scaldanti.json");
        return QJsonDocument::fromJson(bytes.c_str())["floors"][0]["rooms"][1]["radiator"];
    };
    const QJsonValue chosen = radiator();
    EXPECT_TRUE(chosen.isObject());
    ASSERT_EQ(Run({L"--building", m_folder.Path("casa.json")}), ExitCode::ok) << m_err.str();
    EXPECT_EQ(radiator(), chosen);
}

TEST_F(BatchTest, BlocksThatCannotBeReadAreToldAndTheRestIsDone)
{
    m_folder.WriteBytes("rotto.dxf", "0\nSECTION\nrotto\n");
    const CSettingOverride blocks(kSettingHKBlockFolder, m_folder.Path("rotto.dxf"));
    EXPECT_EQ(Run({}), ExitCode::badCatalogue);
    EXPECT_NE(m_err.str().find("rotto.dxf: riga 3: "), std::string::npos) << m_err.str();
    EXPECT_NE(m_out.str().find("pianta.dxf"), std::string::npos);
}

} // namespace workbench
