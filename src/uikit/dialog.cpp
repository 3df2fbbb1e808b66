#include "uikit/dialog.h"

#include "platform/exception.h"
#include "platform/message.h"
#include "uikit/application.h"
#include "uikit/native/access.h"
#include "uikit/native/caption_bar.h"
#include "uikit/native/dialog_window.h"
#include "uikit/native/observer.h"
#include "uikit/native/owner.h"
#include "uikit/win_app.h"

#include <QApplication>
#include <QMetaObject>
#include <QScopedValueRollback>

#include <utility>

namespace {

bool IsCommand(ControlEvent event)
{
    return event != ControlEvent::treeSelectionChanged &&
           event != ControlEvent::treeItemExpanding && event != ControlEvent::step;
}

/// What the application object at work puts in the place of a template, if anything.
std::optional<DialogTemplate> AskForReplacement(const DialogTemplate& dialogTemplate)
{
    CWinApp* const app = CWinApp::Current();
    if (app == nullptr) {
        return std::nullopt;
    }
    app->Start();
    COccManager* const manager = app->GetOccManager();
    return manager != nullptr ? manager->PreCreateDialog(dialogTemplate) : std::nullopt;
}

} // namespace

CDialog::CDialog(const DialogTemplate& dialogTemplate) : m_template(dialogTemplate) {}

CDialog::~CDialog() = default;

void CDialog::Create()
{
    auto* window = new CDialogWindow(*this, QApplication::activeWindow());
    CNativeAccess::Attach(*this, window);
    SetWindowText(GetTemplate().caption);
    window->Fill(GetTemplate());
    PutAboveOwner(*window);
    window->DefaultPlace();
}

int CDialog::DoModal()
{
    if (!EnsureApplication()) {
        WriteMessage({m_template.caption,
                      L"il programma non può mostrare finestre, questa vale come annullata",
                      MessageIcon::stop});
        return kIdCancel;
    }
    m_replacement = AskForReplacement(m_template);
    m_result = kIdCancel;
    m_ended = false;
    m_systemMenu.Clear();
    Create();
    bool focusFirst = true;
    Guard([&] { focusFirst = OnInitDialog(); });

    CDialogWindow* window = WindowOf(*this);
    if (!m_ended) {
        window->ApplyColors();
        window->ApplyMinMax(window->WholeSize());
        if (focusFirst) {
            window->FocusFirst();
        }
        window->show();
        window->activateWindow();
        QMetaObject::invokeMethod(
            window, [this] { Guard([this] { TellDialogObserver(*this); }); }, Qt::QueuedConnection);
        window->RunLoop();
    }
    Guard([this] { OnDestroy(); });
    window->hide();
    delete window;
    if (m_failure) {
        std::rethrow_exception(std::exchange(m_failure, nullptr));
    }
    return m_result;
}

void CDialog::EndDialog(int result)
{
    m_result = result;
    m_ended = true;
    if (CDialogWindow* window = WindowOf(*this)) {
        window->Leave();
    }
}

CWnd CDialog::GetDlgItem(int id) const
{
    CWnd control;
    const CDialogWindow* window = WindowOf(*this);
    if (QWidget* widget = window != nullptr ? window->Find(id) : nullptr) {
        CNativeAccess::Attach(control, widget);
    }
    return control;
}

bool CDialog::UpdateData(bool save)
{
    CDataExchange exchange(*this, save);
    bool complete = true;
    {
        const QScopedValueRollback depth(m_exchangeDepth, m_exchangeDepth + 1);
        try {
            DoDataExchange(&exchange);
        } catch (const CExchangeFailed&) {
            complete = false;
        }
    }
    DeliverDeferred();
    return complete;
}

void CDialog::DeliverDeferred()
{
    if (m_exchangeDepth > 0) {
        return;
    }
    std::vector<CNotify> waiting = std::exchange(m_deferred, {});
    for (CNotify& notify : waiting) {
        if (!m_ended) {
            DispatchNotify(notify);
        }
    }
}

void CDialog::Raise(CNotify& notify)
{
    if (m_ended) {
        return;
    }
    if (m_exchangeDepth == 0 || !IsCommand(notify.event)) {
        Guard([&] { DispatchNotify(notify); });
    } else if (!m_dropEvents) {
        m_deferred.push_back(notify);
    }
}

void CDialog::DispatchNotify(CNotify& notify)
{
    if (IsCommand(notify.event)) {
        OnCommand(notify.id, notify.event);
    } else if (const MessageEntry* entry = GetMessageMap().Find(notify.id, notify.event)) {
        entry->handler(*this, notify);
    }
}

bool CDialog::OnCommand(int id, ControlEvent event)
{
    if (const MessageEntry* entry = GetMessageMap().Find(id, event)) {
        CNotify notify{id, event};
        entry->handler(*this, notify);
        return true;
    }
    if (event == ControlEvent::clicked && id == kIdOk) {
        OnOK();
        return true;
    }
    if (event == ControlEvent::clicked && id == kIdCancel) {
        OnCancel();
        return true;
    }
    return false;
}

/// No exception may pass through the toolkit's event loop.
void CDialog::Guard(const std::function<void()>& work)
{
    try {
        work();
    } catch (const CException& error) {
        ShowMessage({L"", error.GetErrorMessage(), MessageIcon::stop});
    } catch (...) {
        if (!m_failure) {
            m_failure = std::current_exception();
        }
        EndDialog(kIdCancel);
    }
}

void CDialog::SetTimer(int id, int milliseconds)
{
    if (CDialogWindow* window = WindowOf(*this)) {
        window->StartTimer(id, milliseconds);
    }
}

void CDialog::KillTimer(int id)
{
    if (CDialogWindow* window = WindowOf(*this)) {
        window->StopTimer(id);
    }
}

CWnd CDialog::CreateControl(const ControlTemplate& control, const CRect& pixels)
{
    CWnd created;
    if (CDialogWindow* window = WindowOf(*this)) {
        CNativeAccess::Attach(created, window->Add(control, ToNative(pixels)));
    }
    return created;
}

void CDialog::MoveControls(const std::vector<Move>& moves)
{
    CDialogWindow* window = WindowOf(*this);
    if (window == nullptr) {
        return;
    }
    window->Client().setUpdatesEnabled(false);
    for (const Move& move : moves) {
        if (QWidget* widget = window->Find(move.id)) {
            widget->setGeometry(ToNative(move.rect));
        }
    }
    window->Client().setUpdatesEnabled(true);
}

void CDialog::PostNextControl()
{
    if (CDialogWindow* window = WindowOf(*this)) {
        QMetaObject::invokeMethod(
            window, [window] { window->NextControl(); }, Qt::QueuedConnection);
    }
}

CRect CDialog::GetKeptRect() const
{
    const CDialogWindow* window = WindowOf(*this);
    return window != nullptr ? FromNative(QRect(window->KeptPlace(), window->WholeSize()))
                             : CRect();
}

int CDialog::GetFocusId() const
{
    const CDialogWindow* window = WindowOf(*this);
    const QWidget* focus = window != nullptr ? window->focusWidget() : nullptr;
    return focus != nullptr ? GetControlId(*focus) : 0;
}

void CDialog::RedrawFrame()
{
    if (const CDialogWindow* window = WindowOf(*this)) {
        window->Caption().update();
    }
}

CRect CDialog::MapDialogRect(const CRect& units) const
{
    const CDialogWindow* window = WindowOf(*this);
    return window != nullptr ? FromNative(window->MapUnits(units)) : CRect();
}

void CDialog::DoDataExchange(CDataExchange* /*pDX*/) {}

bool CDialog::OnInitDialog()
{
    UpdateData(false);
    return true;
}

void CDialog::OnOK()
{
    if (UpdateData(true)) {
        EndDialog(kIdOk);
    }
}

void CDialog::OnCancel()
{
    EndDialog(kIdCancel);
}

const CMessageMap& CDialog::GetMessageMap() const
{
    static const CMessageMap map(nullptr, {});
    return map;
}

void CDialog::OnPaint() {}

void CDialog::OnEraseBackground(CDC& dc)
{
    if (const CDialogWindow* window = WindowOf(*this)) {
        const QColor color = window->Client().palette().color(QPalette::Window);
        const auto part = [](int value) { return static_cast<std::uint8_t>(value); };
        dc.FillRect(GetClientRect(),
                    RGB(part(color.red()), part(color.green()), part(color.blue())));
    }
}

void CDialog::OnSize(SizeKind /*kind*/) {}
void CDialog::OnMove() {}
void CDialog::OnMinMaxInfo(MinMaxInfo& /*info*/) {}
void CDialog::OnTimer(int /*id*/) {}

void CDialog::OnSysCommand(unsigned id)
{
    if (CDialogWindow* window = WindowOf(*this)) {
        window->DoSystemCommand(id);
    }
}

bool CDialog::OnHelp()
{
    return false;
}

void CDialog::OnNcPaint(CDC& /*dc*/) {}
void CDialog::OnNcLButtonDown(CPoint /*screen*/) {}

ControlColors CDialog::OnCtlColor(ColorKind /*kind*/)
{
    return {};
}

void CDialog::OnDestroy() {}
