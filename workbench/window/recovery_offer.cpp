#include "workbench/window/recovery_offer.h"

#include "platform/exception.h"
#include "workbench/keeping/file_identity.h"
#include "workbench/keeping/json_time.h"
#include "workbench/keeping/recovery_file.h"
#include "workbench/toolkit/qt_text.h"
#include "workbench/window/plan_document.h"
#include "workbench/window/prompts.h"

#include <QDateTime>
#include <QFileInfo>

#include <algorithm>
#include <functional>
#include <utility>

namespace workbench {

namespace {

struct CLeftWork
{
    std::unique_ptr<CRecoveryFile> file;
    CRecovery work;
};

/// The latest first.
std::vector<CLeftWork> ReadLeftWork(const CPlanDocument& document, QStringList& faults)
{
    std::vector<CLeftWork> left;
    if (document.RecoveryFile() == nullptr) {
        return left;
    }
    const auto tryTo = [&faults](const std::function<void()>& read) {
        try {
            read();
        } catch (const CException& error) {
            faults += "Lavoro non salvato: " + ToQt(error.GetErrorMessage());
        }
    };
    tryTo([&] {
        for (auto& file : document.RecoveryFile()->TakeLeft()) {
            tryTo([&] {
                if (auto work = file->Read()) {
                    const auto later = std::ranges::upper_bound(
                        left, work->nTime, std::greater(),
                        [](const CLeftWork& each) { return each.work.nTime; });
                    left.insert(later, CLeftWork{std::move(file), *std::move(work)});
                }
            });
        }
    });
    return left;
}

QString DescribeFile(const CRecovery& work)
{
    if (work.strPath.empty()) {
        return "L'edificio non è ancora in un file.";
    }
    const QFileInfo file(ToQt(work.strPath));
    QString text = QString("File: %1\n").arg(ToQt(work.strPath));
    if (!file.exists()) {
        return text + "Il file non c'è più.";
    }
    const CString time = DescribeTime(file.lastModified().toSecsSinceEpoch());
    text += QString("Salvato il: %1").arg(ToQt(time));
    return HoldsOther(work.strPath, work.strFingerprint)
               ? text + ", dopo che questo lavoro è cominciato"
               : text;
}

QString Describe(const CRecovery& work)
{
    return QString("%1\nLavoro non salvato: %2")
        .arg(DescribeFile(work), ToQt(DescribeTime(work.nTime)));
}

/// Taken means that the document has it.
bool Offer(CPlanDocument& document, const CPrompts& prompts, QWidget& window, const CLeftWork& left)
{
    const QString name = ToQt(left.work.building.strName);
    const QString question = QString("Il programma si è chiuso prima di salvare l'edificio "
                                     "\"%1\".\n\n%2\n\nRecuperare il lavoro non salvato? Con "
                                     "\"Annulla\" resta da parte per la prossima volta.");
    switch (prompts.ask(&window, question.arg(name, Describe(left.work)), "&Recupera", "&Elimina",
                        true)) {
    case CPrompts::Answer::yes:
        if (document.Recover(left.work)) {
            left.file->Remove();
        }
        return true;
    case CPrompts::Answer::no:
        break;
    case CPrompts::Answer::cancel:
        return false;
    }
    const QString again = QString("Eliminare per sempre il lavoro non salvato di \"%1\"?\n\n%2");
    if (prompts.ask(&window, again.arg(name, Describe(left.work)), "&Conserva", "&Elimina", true) ==
        CPrompts::Answer::no) {
        left.file->Remove();
    }
    return false;
}

} // namespace

bool OfferLeftWork(CPlanDocument& document, const CPrompts& prompts, QWidget& window,
                   const CString& path, QStringList& faults)
{
    for (const CLeftWork& left : ReadLeftWork(document, faults)) {
        if (!path.empty() && !IsSameFile(left.work.strPath, path)) {
            continue;
        }
        try {
            if (Offer(document, prompts, window, left)) {
                return true;
            }
        } catch (const CException& error) {
            faults += ToQt(error.GetErrorMessage());
        }
    }
    return false;
}

QStringList DescribeOtherLeftWork(const CPlanDocument& document, const CString& path)
{
    QStringList lines;
    QStringList toldBefore;
    for (const CLeftWork& left : ReadLeftWork(document, toldBefore)) {
        const QString file = ToQt(left.work.strPath);
        if (IsSameFile(left.work.strPath, path)) {
            continue;
        }
        const QString line =
            QString("Di \"%1\" c'è lavoro non salvato del %2: ")
                .arg(ToQt(left.work.building.strName), ToQt(DescribeTime(left.work.nTime)));
        lines +=
            line + (file.isEmpty() ? QString("si recupera avviando il programma senza edificio.")
                                   : QString("si recupera aprendo %1.").arg(file));
    }
    return lines;
}

} // namespace workbench
