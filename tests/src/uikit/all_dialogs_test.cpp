#include "dialogs/resizing_dialog.h"
#include "tests/src/uikit/all_dialogs.h"

#include <QAbstractButton>
#include <QRadioButton>
#include <QTest>

#include <map>

namespace {

/// A check box or label may stand on the top line of a frame without a title.
bool Heads(const Part& part, const Part& group)
{
    const QRect line(group.place.topLeft(),
                     QSize(group.place.width(), group.widget->fontMetrics().height()));
    return *group.control.caption == L'\0' && line.contains(part.place.center()) &&
           part.place.left() > line.left() && part.place.right() < line.right();
}

bool Holds(const Part& group, const Part& part)
{
    const int title = *group.control.caption == L'\0' ? 1 : group.widget->fontMetrics().height();
    return IsGroup(group) && &group.control != &part.control &&
           (group.place.adjusted(1, title, -1, -1).contains(part.place) || Heads(part, group));
}

void CheckPlaces(const CDialog& dialog, const std::vector<Part>& parts, Complaints& complaints)
{
    const CRect client = dialog.GetClientRect();
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const Part& part = parts[i];
        // What a collapsed dialog keeps below its edge is out of reach.
        const bool putAway = !part.widget->isEnabled() && !ToNative(client).intersects(part.place);
        if (!putAway && !ToNative(client).contains(part.place)) {
            complaints.push_back("outside: " + Name(part));
        }
        for (std::size_t k = 0; k < i; ++k) {
            const Part& other = parts[k];
            if (part.place.intersects(other.place) && !Holds(part, other) && !Holds(other, part)) {
                complaints.push_back("overlap: " + Name(other) + " and " + Name(part));
            }
        }
    }
}

bool IsTabStop(const Part& part)
{
    switch (part.control.kind) {
    case ControlKind::label:
    case ControlKind::sunkenLabel:
    case ControlKind::groupBox:
    case ControlKind::canvas:
    case ControlKind::sizeGrip:
        return false;
    case ControlKind::radioButton:
        // The chosen one of a group stands for all of them.
        if ((part.widget->focusPolicy() & Qt::TabFocus) == 0) {
            return false;
        }
        break;
    default:
        break;
    }
    return (part.control.style & styleNoTabStop) == 0 && part.widget->isEnabled();
}

/// The frames around a control, from the outermost inwards, and the control itself.
std::vector<const Part*> Surroundings(const Part& part, const std::vector<Part>& parts)
{
    std::vector<const Part*> chain;
    for (const Part& group : parts) {
        if (Holds(group, part)) {
            chain.push_back(&group);
        }
    }
    std::ranges::sort(chain, std::greater(), [](const Part* group) {
        return group->place.width() * group->place.height();
    });
    chain.push_back(&part);
    return chain;
}

/// Reading goes down or to the right, where the next column may begin further up; a frame is read
/// to its end.
bool IsReadNext(const Part& part, const Part& next, const std::vector<Part>& parts)
{
    const auto before = Surroundings(part, parts);
    const auto behind = Surroundings(next, parts);
    const auto [a, b] = std::ranges::mismatch(before, behind);
    const QRect& from = (*a)->place;
    const QRect& to = (*b)->place;
    return to.top() > from.center().y() || to.left() > from.right();
}

void CheckKeyboard(const CDialog& dialog, const std::vector<Part>& parts, Complaints& complaints)
{
    const QWidget* window = CNativeAccess::Widget(dialog);
    std::vector<const Part*> stops;
    for (const Part& part : parts) {
        const auto* button = qobject_cast<QAbstractButton*>(part.widget);
        const bool tells = button != nullptr && !button->text().isEmpty();
        if (tells && qobject_cast<QRadioButton*>(part.widget) == nullptr &&
            (part.widget->focusPolicy() & Qt::TabFocus) == 0) {
            complaints.push_back("no way in by keyboard: " + Name(part));
        }
        if (IsTabStop(part)) {
            stops.push_back(&part);
        }
    }
    if (stops.empty()) {
        return;
    }
    stops.front()->widget->setFocus(Qt::TabFocusReason);
    for (std::size_t i = 0; i < stops.size(); ++i) {
        QWidget* focus = window->focusWidget();
        const QWidget* expected = stops[i]->widget;
        if (focus == nullptr || (focus != expected && focus != expected->focusProxy())) {
            complaints.push_back("Tab does not come to " + Name(*stops[i]));
            return;
        }
        if (i > 0 && !IsReadNext(*stops[i - 1], *stops[i], parts)) {
            complaints.push_back("read before " + Name(*stops[i - 1]) + ": " + Name(*stops[i]));
        }
        QTest::keyClick(focus, Qt::Key_Tab);
    }
}

/// By which share of the dialog's growth the near and the far edge of a control go.
struct Way
{
    double near = 0.0;
    double far = 0.0;
};

constexpr Way kStays{};
constexpr Way kStretches{0.0, 1.0};
constexpr Way kGoesAlong{1.0, 1.0};
constexpr Way kKeepsToTheMiddle{0.5, 0.5};

struct Followers
{
    int firstId;
    int lastId;
    Way x;
    Way y;
};

/// The dialogs that users may size, and the controls that follow; all others stay.
const std::map<int, std::vector<Followers>> kSizingRules = {
    {18000,
     {{18001, 18001, kStretches, kStretches},
      {18000, 18000, kStays, kStretches},
      {kIdOk, kIdCancel, kKeepsToTheMiddle, kGoesAlong},
      {563, 563, kStays, kStretches}}},
    {18002,
     {{18000, 18000, kStretches, kStretches},
      {kIdOk, kIdCancel, kGoesAlong, kGoesAlong},
      {563, 563, kStays, kStretches}}},
    {18003,
     {{kIdOk, kIdCancel, kGoesAlong, kGoesAlong},
      {18019, 18019, kStretches, kStretches},
      {18051, 18066, kGoesAlong, kStays},
      {18022, 18032, kGoesAlong, kStays},
      {371, 371, kGoesAlong, kStays},
      {18035, 18037, kGoesAlong, kStays},
      {18039, 18039, kStretches, kStays},
      {18043, 18043, kGoesAlong, kStays},
      {563, 563, kStays, kStretches}}},
};

QRect Followed(const Part& part, const std::vector<Followers>& rules, const QSize& growth)
{
    const int id = part.control.id;
    const auto rule = std::ranges::find_if(
        rules, [id](const Followers& f) { return id >= f.firstId && id <= f.lastId; });
    const auto [x, y] =
        rule == rules.end() ? std::pair(kStays, kStays) : std::pair(rule->x, rule->y);
    const auto share = [](double portion, int whole) { return static_cast<int>(portion * whole); };
    return part.place.adjusted(share(x.near, growth.width()), share(y.near, growth.height()),
                               share(x.far, growth.width()), share(y.far, growth.height()));
}

std::string Text(const QRect& place)
{
    return std::to_string(place.left()) + ',' + std::to_string(place.top()) + ' ' +
           std::to_string(place.width()) + 'x' + std::to_string(place.height());
}

/// Sizes the dialog as far as it lets itself be, and looks where its controls have gone.
void CheckEnlarged(CDialog& dialog, const std::vector<Followers>& rules, Complaints& complaints)
{
    constexpr int kGrowth = 300;
    const std::vector<Part> before = PartsOf(dialog);
    const QRect small = ToNative(dialog.GetClientRect());
    CRect window = dialog.GetWindowRect();
    window.right += kGrowth;
    window.bottom += kGrowth;
    dialog.MoveWindow(window);
    const std::vector<Part> after = PartsOf(dialog);
    const QSize growth = ToNative(dialog.GetClientRect()).size() - small.size();
    if (growth.isNull()) {
        complaints.push_back("does not grow");
    }
    for (std::size_t i = 0; i < after.size(); ++i) {
        const QRect expected = Followed(before.at(i), rules, growth);
        if (after[i].place != expected) {
            complaints.push_back("lost its anchor: " + Name(after[i]) + " at " +
                                 Text(after[i].place) + ", not " + Text(expected));
        }
        for (std::size_t k = 0; k < after.size(); ++k) {
            if (Holds(before[k], before[i]) && !Holds(after[k], after[i])) {
                complaints.push_back("left its frame: " + Name(after[i]) + " of " + Name(after[k]));
            }
        }
    }
    CheckTexts(dialog, after, complaints);
    CheckPlaces(dialog, after, complaints);
}

/// Anchors along a direction that a dialog locks are told all the same.
class CUnlocked : public CResizingDialog
{
public:
    static constexpr auto Sizing() { return &CUnlocked::GroesseErlauben; }
};

void CheckSizing(CDialog& dialog, Complaints& complaints)
{
    const auto rule = kSizingRules.find(dialog.GetTemplateId());
    if (dialog.IsResizable() != (rule != kSizingRules.end())) {
        complaints.push_back("sizing and its rules disagree");
    } else if (dialog.IsResizable()) {
        CheckEnlarged(dialog, rule->second, complaints);
        (dynamic_cast<CResizingDialog&>(dialog).*CUnlocked::Sizing())(true, true);
        CheckEnlarged(dialog, rule->second, complaints);
    }
}

/// Checks every dialog that opens, then cancels it.
class AllDialogs : public CAllDialogsTest
{
protected:
    Complaints Check(CDialog& dialog) override
    {
        const std::vector<Part> parts = PartsOf(dialog);
        Complaints complaints;
        CheckTexts(dialog, parts, complaints);
        CheckPlaces(dialog, parts, complaints);
        CheckKeyboard(dialog, parts, complaints);
        CheckSizing(dialog, complaints);
        return complaints;
    }
};

TEST_P(AllDialogs, FitTheirCaptionsWorkByKeyboardAndFollowTheirSize)
{
    LookAtAll();
}

TEST_P(AllDialogs, ALongTitleGetsItsRoom)
{
    const wchar_t* const title = L"Un titolo più lungo di tutto quello che il dialogo contiene";
    const ControlTemplate ok = {kIdOk, ControlKind::defaultButton, L"OK", 4, 20, 44, 14};
    CDialog({7004, title, 100, 40, frameFixed, {ok}}).DoModal();
    EXPECT_EQ(m_complaints, Complaints{});
}

/// The last one is wider than others where captions are, in letters of the lower case.
INSTANTIATE_TEST_SUITE_P(Fonts, AllDialogs,
                         ::testing::Values(DialogFont{L"Tahoma", 8}, DialogFont{L"Tahoma", 12},
                                           DialogFont{L"DejaVu Sans Mono", 9}));

} // namespace
