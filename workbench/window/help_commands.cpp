#include "workbench/window/help_commands.h"

#include "host/host_catalog.h"
#include "reference_host/catalog/help_pages.h"
#include "workbench/window/command_icons.h"

#include <QCoreApplication>
#include <QMenu>
#include <QMessageBox>

namespace workbench {

namespace {

/// The number that a host hands on with every page.
constexpr int kPageKind = 100;

struct CPage
{
    unsigned id;
    const char* title;
    const char* keys;
};

/// The window's own page, and those of the dialogs that it opens.
constexpr CPage kPages[] = {
    {1, "&Guida", "F1"},
    {18000, "&Scelta del corpo scaldante", ""},
    {18002, "Scelta del &prodotto", ""},
    {238, "&Attacchi e valvole", ""},
    {18003, "Scelta della &valvola", ""},
    {18006, "&Distanze", ""},
};

} // namespace

CHelpCommands::CHelpCommands(QWidget& window) : m_window(window) {}

void CHelpCommands::AddPages(QMenu& menu)
{
    for (const CPage& page : kPages) {
        if (!reference_host::FindHelpPage(page.id)) {
            continue;
        }
        QAction* const action = menu.addAction(page.title);
        action->setObjectName(QString("help%1").arg(page.id));
        action->setShortcut(QKeySequence(page.keys));
        connect(action, &QAction::triggered, this, [id = page.id] { ShowPDF(id, kPageKind); });
        m_window.addAction(action);
    }
}

void CHelpCommands::About()
{
    QMessageBox box(&m_window);
    box.setObjectName("about");
    box.setWindowTitle("Informazioni su radsel");
    box.setIconPixmap(ProgramIcon().pixmap(64));
    box.setText(QString("<b>radsel %1</b><br>Scelta di corpi scaldanti e valvole dai cataloghi dei "
                        "produttori.")
                    .arg(QCoreApplication::applicationVersion().toHtmlEscaped()));
    box.setInformativeText(
        QString("<p>Il programma è sotto la licenza GPL-2.0 o successiva, il modulo di scelta e le "
                "librerie dell'host sotto la licenza MIT. I testi sono nella cartella LICENSES.</p>"
                "<p>Usa Qt %1 (LGPL-3.0), dxflib (GPL-2.0 o successiva) e libxlsxwriter (BSD).<br>"
                "Produttori, prodotti ed edifici degli esempi sono inventati.</p>")
            .arg(qVersion()));
    box.addButton("&Chiudi", QMessageBox::AcceptRole);
    box.exec();
}

} // namespace workbench
