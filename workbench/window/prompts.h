#pragma once

#include "platform/text.h"

#include <QString>

#include <functional>
#include <optional>

class QWidget;

namespace workbench {

/// What the window asks the user in small dialogs. Members can be replaced, so that a test answers.
struct CPrompts
{
    enum class Answer
    {
        yes,
        no,
        cancel,
    };

    /// A file to open or to write, or a folder; nothing if the user cancelled. `filter` is the
    /// toolkit's ("Edifici (*.json)"), `proposal` the path that stands there first.
    using AskPath = std::function<std::optional<CString>(
        QWidget* parent, const QString& title, const QString& filter, const CString& proposal)>;
    AskPath openFile;
    AskPath saveFile;
    AskPath openFolder;

    /// A question with its two answers in words; without `cancellable` the user must choose.
    std::function<Answer(QWidget* parent, const QString& text, const QString& yes,
                         const QString& no, bool cancellable)>
        ask;

    enum class Tone
    {
        information,
        error,
    };

    /// Something that the user has to know before he goes on.
    std::function<void(QWidget* parent, const QString& text, Tone tone)> tell;
};

/// The toolkit's own dialogs.
CPrompts MakePrompts();

} // namespace workbench
