#pragma once

#include "platform/text.h"

#include <QObject>

#include <optional>

class QWidget;

namespace workbench {

class CPlanDocument;
struct CDrawingBlocks;
struct CPrompts;

/// What the designer does with files. What goes wrong is told to him with the file's name, and
/// leaves building and files as they were.
class CFileCommands : public QObject
{
    Q_OBJECT

public:
    /// All outlive the commands. `window` is the parent of dialogs.
    CFileCommands(CPlanDocument& document, const CDrawingBlocks& blocks, const CPrompts& prompts,
                  QWidget& window);

    /// Begins with the building of a file that the user asked for, or if he asked for none with
    /// what a crash left behind, or else with a sample. What cannot be read is told, and there is
    /// no building then.
    void Start(const CString& asked, const CString& sample);

    /// Asks for the first room of a building that is in no file yet, and goes on with that.
    void New();

    /// Asks for a building and goes on with that, or with what a crash left of it.
    void Open();

    /// The same with a file that the user worked on before.
    void OpenRecent(const CString& path);

    /// False if the user cancelled or the file could not be written.
    bool Save();
    bool SaveAs();

    /// Asks whether to save what is not saved yet. False if the user wants to stay.
    bool MayLeave();

    void ExportCsv();
    void ExportXlsx();
    void ExportJson();
    void ExportPdf();
    void ExportDxf();

    /// Asks for the folder of the radiator catalogues, which becomes the user's own, and tells
    /// which of its files cannot be read.
    void ChooseCatalogues();

    /// The same for the valves; tells the makers that were found.
    void ChooseValveCatalogues();

signals:
    /// Something for the list of messages; may have several lines.
    void Told(const QString& message);

private:
    /// Where a building goes that is to be saved.
    enum class Target
    {
        here,
        elsewhere,
        nowhere,
    };
    Target AskWhere(const CString& path);
    bool SaveTo(const CString& path);
    void OpenOrRecover(const CString& path);
    bool RecoverWork(const CString& path);
    void Load(const CString& path);
    void TryOpen(const CString& path);
    /// Asks for a folder, which becomes that of a setting; nothing if the user cancelled.
    std::optional<CString> AskFolder(const QString& title, const wchar_t* setting,
                                     const CString& now);
    /// Tells who else works on the building's file, if anybody does.
    void TellUse();
    /// Tells which valve files that the building needs are damaged.
    void TellValveFaults();
    void Tell(const QStringList& lines);
    void TellError(const QString& text);
    /// Asks for a file to write; nothing if the user cancelled, or keeps what it would replace.
    std::optional<CString> AskTarget(const QString& title, const QString& filter,
                                     const CString& suffix);
    /// Asks for the file and lets `write` write it.
    template <class WRITE>
    void Export(const QString& title, const QString& filter, const CString& suffix, WRITE write);

    CPlanDocument& m_document;
    const CDrawingBlocks& m_blocks;
    const CPrompts& m_prompts;
    QWidget& m_window;
};

/// Reads all catalogues and tells in one text which cannot be read; empty if all can.
QString DescribeCatalogueErrors();

} // namespace workbench
