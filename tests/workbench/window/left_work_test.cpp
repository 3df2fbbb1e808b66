// Work that is not saved, over a crash.

#include "tests/workbench/window/workbench_fixture.h"

#include <QDateTime>
#include <QDeadlineTimer>
#include <QTest>

#include <tuple>

namespace workbench {

using LeftWorkTest = WorkbenchWindow;

TEST_F(LeftWorkTest, KeepsUnsavedWorkForTheNextStart)
{
    Do("sizeAll");
    m_document.KeepNow();
    const auto kept = m_recovery.Read();
    ASSERT_TRUE(kept);
    EXPECT_EQ(kept->strPath, m_path.wstring());
    CPlanDocument next(nullptr);
    next.Recover(*kept);
    EXPECT_EQ(FormatBuilding(next.Building()), FormatBuilding(m_document.Building()));
    EXPECT_FALSE(next.IsSaved());
    Do("undo");
    EXPECT_FALSE(m_recovery.Read());
}

TEST_F(LeftWorkTest, KeepsSteadyWorkAsWell)
{
    CBuilding building = m_document.Building();
    const QDeadlineTimer latest(3000);
    for (int i = 0; !m_recovery.Read() && !latest.hasExpired(); ++i) {
        building.strName = L"Casa " + std::to_wstring(i);
        m_document.Do(L"Nome", building);
        QTest::qWait(20);
    }
    EXPECT_TRUE(m_recovery.Read());
}

TEST_F(LeftWorkTest, TriesToKeepWorkUntilItSucceeds)
{
    const fs::path folder = fs::path(m_folder.Path()) / "posto";
    fs::rename(folder, fs::path(m_folder.Path()) / "via");
    Do("sizeAll");
    EXPECT_FALSE(m_document.KeepNow());
    EXPECT_FALSE(m_document.KeepNow());
    EXPECT_EQ(Messages().count("non è al sicuro"), 1) << Messages().toStdString();
    fs::rename(fs::path(m_folder.Path()) / "via", folder);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_recovery.Read().has_value(); }, 3000));
}

TEST_F(LeftWorkTest, OffersLeftWorkUntilTheUserSaysTwiceToDeleteIt)
{
    using enum CPrompts::Answer;
    const CBuilding work = LeaveWork(m_path.wstring());
    const std::tuple<std::vector<CPrompts::Answer>, std::size_t> answers[] = {
        {{cancel}, 1u},
        {{no, cancel}, 1u},
        {{no, yes}, 1u},
        {{no, no}, 0u},
    };
    for (const auto& [given, left] : answers) {
        m_answers = given;
        m_nQuestions = 0;
        m_window->Start(m_path.wstring(), {});
        EXPECT_EQ(std::size_t(m_nQuestions), given.size());
        EXPECT_EQ(LeftWork(), left);
        EXPECT_EQ(m_document.Building().strName, L"Villa dei Tigli");
        EXPECT_TRUE(m_document.IsSaved());
    }
    m_nQuestions = 0;
    m_window->Start(m_path.wstring(), {});
    EXPECT_EQ(m_nQuestions, 0);
}

TEST_F(LeftWorkTest, RecoveredWorkGoesOnWithItsFile)
{
    const CBuilding work = LeaveWork(m_path.wstring());
    const QDateTime saved = QDateTime::currentDateTime().addDays(-3);
    fs::last_write_time(m_path, fs::last_write_time(m_path) - std::chrono::days(3));
    m_answers = {CPrompts::Answer::yes};
    m_answerPath = m_path.wstring();
    Do("open");
    EXPECT_TRUE(m_question.contains("casa.json")) << m_question.toStdString();
    for (const QDateTime& day : {saved, QDateTime::currentDateTime()}) {
        EXPECT_TRUE(m_question.contains(day.toString("dd/MM/yyyy"))) << m_question.toStdString();
    }
    EXPECT_EQ(FormatBuilding(m_document.Building()), FormatBuilding(work));
    EXPECT_FALSE(m_document.IsSaved());
    EXPECT_EQ(LeftWork(), 0u);
    ASSERT_TRUE(m_recovery.Read()) << "it would outlive another crash";

    m_nQuestions = 0;
    Do("save");
    EXPECT_EQ(m_nQuestions, 0) << "nobody changed the file meanwhile";
    EXPECT_EQ(BytesOf(m_path), FormatBuilding(work));

    LeaveWork(m_path.wstring());
    std::ofstream(m_path) << BytesOf(fs::path(RADSEL_DATA_DIR) / "buildings/villa-dei-tigli.json");
    m_answers = {CPrompts::Answer::yes, CPrompts::Answer::cancel};
    Do("open");
    Do("save");
    EXPECT_EQ(m_nQuestions, 2) << "the file is not the one that the work began with";
}

TEST_F(LeftWorkTest, LeftWorkNeverTakesThePlaceOfAnotherBuilding)
{
    const fs::path other = m_path.parent_path() / "altra.json";
    fs::copy_file(m_path, other);
    LeaveWork(other.wstring());
    m_window->Start(m_path.wstring(), {});
    EXPECT_EQ(m_nQuestions, 0);
    EXPECT_EQ(m_document.Path(), m_path.wstring());
    EXPECT_TRUE(Messages().contains("altra.json")) << Messages().toStdString();

    m_answer = CPrompts::Answer::cancel;
    m_window->Start({}, m_path.wstring());
    EXPECT_EQ(m_nQuestions, 1) << "no building was asked for";
    EXPECT_EQ(m_document.Path(), m_path.wstring());
    m_answer = CPrompts::Answer::yes;
    m_window->Start({}, m_path.wstring());
    EXPECT_EQ(m_document.Path(), other.wstring());
    EXPECT_EQ(m_document.Building().strName, L"Lavoro");
}

} // namespace workbench
