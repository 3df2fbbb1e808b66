#pragma once

#include "workbench/window/workbench_window.h"

#include "platform/encoding.h"
#include "workbench/building/building_json.h"
#include "workbench/drawing/drawing_blocks.h"
#include "workbench/keeping/file_identity.h"
#include "workbench/plan/coverage.h"
#include "workbench/window/floor_scene.h"

#include "tests/support/environment_variable.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QPushButton>
#include <QTextEdit>
#include <QTimer>

#include <filesystem>
#include <fstream>

namespace workbench {

namespace fs = std::filesystem;

inline const CString kData = WideFromUtf8(RADSEL_DATA_DIR);

inline std::string BytesOf(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The window over a copy of the sample building, with a test for a user.
class WorkbenchWindow : public testing::Test
{
protected:
    WorkbenchWindow()
    {
        // What the user chooses for good must not become that of who runs the tests.
        qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(Utf8FromWide(m_folder.Path())));
        fs::copy_file(fs::path(RADSEL_DATA_DIR) / "buildings/villa-dei-tigli.json", m_path);
        m_document.Open(m_path.wstring());
        m_window = MakeWindow(m_document);
    }

    std::unique_ptr<CWorkbenchWindow> MakeWindow(CPlanDocument& document)
    {
        CPrompts prompts;
        const auto answerPath = [this](QWidget*, const QString&, const QString&, const CString&) {
            return m_answerPath;
        };
        prompts.openFile = prompts.saveFile = prompts.openFolder = answerPath;
        prompts.ask = [this](QWidget*, const QString& text, const QString&, const QString&, bool) {
            ++m_nQuestions;
            m_question = text;
            if (m_answers.empty()) {
                return m_answer;
            }
            const CPrompts::Answer answer = m_answers.front();
            m_answers.erase(m_answers.begin());
            return answer;
        };
        prompts.tell = [this](QWidget*, const QString& text, CPrompts::Tone tone) {
            m_told = text;
            m_tone = tone;
        };
        return std::make_unique<CWorkbenchWindow>(document, ReadDrawingBlocks(), prompts);
    }

    QAction& Action(const char* name) { return *m_window->findChild<QAction*>(name); }
    void Do(const char* name) { Action(name).trigger(); }

    std::size_t Open() const { return OpenRooms(m_document.Building()).size(); }
    const CRoom& Room(std::size_t floor, std::size_t room) const
    {
        return RoomOf(m_document.Building(), {floor, room});
    }

    Coverage StateOf(std::size_t floor, std::size_t room) const
    {
        return CoverageOf(m_document.Building(), Room(floor, room));
    }

    void Mark(const std::vector<CRoomRef>& rooms)
    {
        m_window->findChild<CFloorScene*>()->MarkRooms(rooms);
    }

    /// What a crashed program leaves behind: a building of another name, and the same otherwise.
    CBuilding LeaveWork(const CString& path)
    {
        CBuilding work = m_document.Building();
        work.strName = L"Lavoro";
        const CRecoveryFile crashed(m_folder.Path() + L"/posto");
        crashed.Write(path, FingerprintOf(BytesOf(m_path)), work);
        return work;
    }

    std::size_t LeftWork() const { return m_recovery.TakeLeft().size(); }

    QString Messages() { return m_window->findChild<QTextEdit*>("messages")->toPlainText(); }

    /// Works on the modal window that the next action opens.
    static void InDialog(const std::function<void(QWidget&)>& work)
    {
        auto* const timer = new QTimer;
        QObject::connect(timer, &QTimer::timeout, [=] {
            if (QWidget* const dialog = QApplication::activeModalWidget()) {
                timer->deleteLater();
                work(*dialog);
            }
        });
        timer->start(1);
    }

    void ChangeSystem(double supply, double back, bool confirm)
    {
        InDialog([=](QWidget& dialog) {
            dialog.findChild<QDoubleSpinBox*>("return")->setValue(back);
            dialog.findChild<QDoubleSpinBox*>("supply")->setValue(supply);
            dialog.findChild<QDialogButtonBox*>()
                ->button(confirm ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel)
                ->click();
        });
        Do("system");
    }

    CTempFolder m_folder;
    CSettingOverride m_catalogues{reference_host::kSettingHKDir, kData + L"/catalogues"};
    CSettingOverride m_valves{reference_host::kSettingVEDir, kData + L"/valves"};
    CSettingOverride m_blocks{reference_host::kSettingHKBlockFolder,
                              kData + L"/drawing/heizkoerper.dxf"};
    CSettingOverride m_valveBlocks{reference_host::kSettingValveBlockFolder,
                                   kData + L"/drawing/ventile.dxf"};
    CSettingOverride m_records{reference_host::kSettingDefFolder, m_folder.Path()};
    fs::path m_path = fs::path(m_folder.Path()) / "casa.json";
    CRecoveryFile m_recovery{m_folder.Path() + L"/posto"};
    CPlanDocument m_document{&m_recovery};
    std::optional<CString> m_answerPath;
    CPrompts::Answer m_answer = CPrompts::Answer::cancel;
    /// These go before the one above.
    std::vector<CPrompts::Answer> m_answers;
    int m_nQuestions = 0;
    QString m_question;
    QString m_told;
    CPrompts::Tone m_tone = CPrompts::Tone::information;
    std::unique_ptr<CWorkbenchWindow> m_window;
};

} // namespace workbench
