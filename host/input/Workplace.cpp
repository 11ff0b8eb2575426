#include "host/input/Workplace.h"

#include "host/widgets/Reading.h"
#include "host/widgets/edit/EditField.h"
#include "host/widgets/form/ChoicePopup.h"
#include "host/widgets/form/FormWindow.h"
#include "host/widgets/form/ScrollingColumn.h"
#include "host/widgets/menu/CommandColumn.h"
#include "host/widgets/popup/DialerField.h"
#include "host/widgets/popup/PopupBox.h"
#include "host/widgets/tab/TabBar.h"
#include "presentation/PRESCPresentationManager.h"
#include "utilities/ICC.h"
#include "widgets/KestrelListBox.h"
#include "widgets/KestrelListBoxItem.h"

#include <algorithm>

namespace host {

namespace {

using Texts = Choices::Texts;
using Kind = Choices::Kind;

constexpr int MOST_NAMES = 12; ///< as many as a sentence may list

std::string utf8(const PegString& text)
{
    return ICC::fromUNICODEtoUTF8(text);
}

Texts textsOf(const KestrelListBoxItem& row)
{
    Texts texts;
    for (const PegString& text : row.describe().texts)
        texts.push_back(utf8(text));
    return texts;
}

Texts textsOf(const Field* field)
{
    const auto* const labelled = dynamic_cast<const FormField*>(field);
    if (labelled == nullptr || !field->takesFocus())
        return {};
    return {utf8(labelled->label()), utf8(labelled->value())};
}

bool isWayBack(const KestrelListBoxItem& row)
{
    return textsOf(row) == Texts{utf8(KestrelListBoxItem::wayBackText())};
}

bool never(int)
{
    return false;
}

bool isAny(const std::string& text, const Texts& wanted)
{
    return std::ranges::find(wanted, text) != wanted.end();
}

bool hasAny(const std::string& text, const Texts& wanted)
{
    return std::ranges::any_of(
        wanted, [&](const std::string& each) { return !each.empty() && text.find(each) != std::string::npos; });
}

/// What is looked for, and where it is being found.
class Search {
public:
    explicit Search(Texts wanted) : mWanted(std::move(wanted)) {}

    /// `textsAt` tells the texts of a choice, and `leadsBack` whether it is one that does so; `naming` is how many of
    /// the texts name it.
    template <typename TextsAt, typename LeadsBack = bool (*)(int)>
    void fill(Choices& choices, TextsAt textsAt, LeadsBack leadsBack = never, std::size_t naming = SIZE_MAX) const
    {
        if (choices.current >= 0) {
            choices.texts = textsAt(choices.current);
            choices.isAtBack = leadsBack(choices.current);
        }
        const int end = mWanted.empty() ? 0 : choices.count;
        for (int at = 0; at < end; ++at) {
            if (leadsBack(at))
                continue;
            Texts texts = textsAt(at);
            if (static_cast<int>(choices.names.size()) < MOST_NAMES && !texts.empty())
                choices.names.push_back(texts.front());
            texts.resize(std::min(texts.size(), naming));
            note(choices, at, texts);
        }
    }

private:
    void note(Choices& choices, int at, const Texts& texts) const
    {
        if (std::ranges::any_of(texts, [&](const std::string& text) { return isAny(text, mWanted); }))
            choices.found.push_back(at);
        else if (std::ranges::any_of(texts, [&](const std::string& text) { return hasAny(text, mWanted); }))
            choices.similar.push_back(at);
    }

    const Texts mWanted;
};

/// Goes through the window on which the user works.
class Reader {
public:
    Reader(Workplace& place, const Texts& wanted) : mPlace(place), mSearch(wanted) {}

    void read(PegThing& thing)
    {
        if (!thing.StatusIs(PSF_VISIBLE))
            return;
        if (auto* const form = dynamic_cast<FormWindow*>(&thing); form != nullptr && addForm(*form))
            return;
        addPart(thing);
        for (PegThing* child = thing.First(); child != nullptr; child = child->NextSibling())
            read(*child);
    }

    /// Null where the user types into nothing.
    EditField* edit() const { return mEdit; }

private:
    /// What lies over a form has all keys.
    bool addForm(FormWindow& form)
    {
        mPlace.title = utf8(form.title());
        if (form.opened() == nullptr)
            return false;
        for (PegThing* child = form.First(); child != nullptr; child = child->NextSibling())
            if (child == form.opened())
                read(*child);
        return true;
    }

    void addPart(PegThing& thing)
    {
        if (auto* const list = dynamic_cast<KestrelListBox*>(&thing))
            addList(*list);
        else if (auto* const column = dynamic_cast<CommandColumn*>(&thing))
            addMenu(*column);
        else if (auto* const fields = dynamic_cast<ScrollingColumn*>(&thing))
            addFields(*fields);
        else if (auto* const bar = dynamic_cast<CommandBar*>(&thing))
            addBar(*bar);
        else if (auto* const tabs = dynamic_cast<TabBar*>(&thing))
            addTabs(*tabs);
        else if (auto* const edit = dynamic_cast<EditField*>(&thing))
            addEdit(*edit);
        else if (auto* const box = dynamic_cast<PopupBox*>(&thing))
            addBox(*box);
    }

    void addBox(const PopupBox& box)
    {
        mPlace.title = utf8(box.header());
        for (const PopupBox::Line& line : box.body())
            mPlace.lines.push_back(utf8(line.text));
    }

    void addList(KestrelListBox& list)
    {
        mPlace.title = utf8(list.title());
        Choices rows = {.kind = Kind::ROWS, .count = list.numItems(), .current = list.currentRow()};
        rows.hasKeys = gpPresent->Focus() == &list;
        mSearch.fill(
            rows, [&](int row) { return textsOf(*list.itemAt(row)); },
            [&](int row) { return isWayBack(*list.itemAt(row)); });
        add(std::move(rows));
    }

    void addMenu(const CommandColumn& column)
    {
        const bool isOfField = dynamic_cast<const ChoicePopup*>(column.Parent()) != nullptr;
        Choices menu = {
            .kind = isOfField ? Kind::VALUES : Kind::MENU, .count = column.count(), .current = column.current()};
        menu.hasKeys = column.hasFocus();
        menu.isRing = true;
        mSearch.fill(
            menu, [&](int command) { return Texts{utf8(column.at(command).text)}; },
            [&](int command) { return column.at(command).leadsBack; });
        add(std::move(menu));
    }

    void addFields(const ScrollingColumn& column)
    {
        Choices fields = {.kind = Kind::FIELDS, .count = column.count()};
        for (int field = 0; field < fields.count; ++field)
            if (column.at(field) == column.focused())
                fields.current = field;
        fields.hasKeys = column.hasFocus();
        mSearch.fill(
            fields, [&](int field) { return textsOf(column.at(field)); }, never, 1);
        add(std::move(fields));
    }

    /// Below an edit line, which has left and right, up and down lead through the commands.
    void addBar(const CommandBar& bar)
    {
        auto* const box = dynamic_cast<PopupBox*>(bar.Parent());
        const bool isBelowText = box != nullptr && dynamic_cast<DialerField*>(box->field()) != nullptr;
        Choices commands = {.kind = Kind::BAR, .count = bar.count(), .current = bar.current()};
        commands.hasKeys = bar.hasFocus() || isBelowText;
        if (!isBelowText)
            turn(commands);
        mSearch.fill(commands, [&](int command) { return Texts{utf8(bar.text(command))}; });
        add(std::move(commands));
    }

    void addTabs(const TabBar& bar)
    {
        Choices tabs = {.kind = Kind::TABS, .count = bar.count(), .current = bar.current()};
        tabs.hasKeys = bar.hasFocus();
        turn(tabs);
        mSearch.fill(tabs, [&](int tab) { return Texts{utf8(bar.title(tab))}; });
        add(std::move(tabs));
    }

    static void turn(Choices& sideBySide)
    {
        sideBySide.before = isReadFromTheRight() ? PK_RIGHT : PK_LEFT;
        sideBySide.behind = isReadFromTheRight() ? PK_LEFT : PK_RIGHT;
    }

    void addEdit(EditField& edit)
    {
        if (!edit.hasFocus() || edit.isReadOnly())
            return;
        const bool isDialler = dynamic_cast<const DialerField*>(edit.Parent()) != nullptr;
        mPlace.edited = EditedText{utf8(edit.text()), edit.cursor(), isDialler, edit.offersSymbols()};
        mEdit = &edit;
    }

    void add(Choices choices)
    {
        if (choices.count > 0)
            mPlace.choices.push_back(std::move(choices));
    }

    Workplace& mPlace;
    const Search mSearch;
    EditField* mEdit = nullptr;
};

/// The window that the focus is in.
PegThing* windowOf(PegThing* focus)
{
    while (focus != nullptr && focus->Parent() != nullptr && focus->Parent() != gpPresent)
        focus = focus->Parent();
    return focus != gpPresent ? focus : nullptr;
}

} // namespace

const Choices* Workplace::withKeys() const
{
    const auto found = std::ranges::find(choices, true, &Choices::hasKeys);
    return found != choices.end() ? &*found : nullptr;
}

const Choices* Workplace::part(Choices::Kind kind) const
{
    const auto found = std::ranges::find(choices, kind, &Choices::kind);
    return found != choices.end() ? &*found : nullptr;
}

Workplace Workplace::read(const Choices::Texts& wanted)
{
    Workplace place;
    PegThing* const window = windowOf(gpPresent->Focus());
    place.window = window;
    if (window != nullptr)
        Reader(place, wanted).read(*window);
    return place;
}

Workplace::Typed Workplace::type(const std::string& text)
{
    Workplace place;
    Reader reader(place, {});
    if (PegThing* const window = windowOf(gpPresent->Focus()))
        reader.read(*window);
    if (reader.edit() == nullptr)
        return Typed::NOWHERE;
    return reader.edit()->enter(ICC::fromUTF8toUNICODE(text)) ? Typed::TAKEN : Typed::OTHERWISE;
}

} // namespace host
