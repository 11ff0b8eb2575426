#pragma once

#include "DisplayAPI/ListItem.h"

namespace DisplayAPI {

/// A row that shows a line of the telephone: its prefix and name, its identity, its state, and whether it is in HD.
///
/// Threads: safe from any thread. Off the GUI thread the constructor and the destructor wait, and getText(), which is
/// the name; everything else posts and returns at once. A request that nobody knows is completed without effect.
/// Ownership: as for ListItem. Translations are not owned and have to outlive the row; null is an empty text.
class DISPLAYAPI_EXPORT LineOverviewItem : public ListItem {
public:
    /// What the icon in front tells; any value travels through, and an unknown one has no icon.
    enum LineState : int {
        IDLE = 0,
        DIALLING = 1,
        RINGING = 2,
        IN_USE = 3,
        HELD = 4,          ///< by this telephone
        HELD_BY_OTHER = 5, ///< by the party at the other end
        CONFERENCE = 6,
        FORWARDED = 7,
        MESSAGE_WAITING = 8,
        DO_NOT_DISTURB = 9,
        NOT_REGISTERED = 10, ///< the whole row is grey
        FAILED = 11
    };

    // Texts are UTF-8.

    explicit LineOverviewItem(LineState state, std::string lineName, std::string lineIdentity = {},
                              TranslationInfo* namePrefix = nullptr);
    LineOverviewItem(const LineOverviewItem&) = delete;
    LineOverviewItem& operator=(const LineOverviewItem&) = delete;
    ~LineOverviewItem() override;

    /// GUI thread only.
    void processGuiRequest(GuiRequestEvent& request) override;

    /// What getPrivateImplemetation() answers. GUI thread only.
    ListItemPrivateIfc* getPrivateImpl();

    void setLineState(LineState state);
    void setDisplayHDIconStatus(bool on);

    /// In front of the name.
    void setLineNamePrefix(TranslationInfo* prefix);

    /// The number or address that the line is reached under: the one that was set last, in whichever form.
    void setLineIdentity(TranslationInfo* identity);
    void setLineIdentity(const std::string& identity);
    void setLineName(const std::string& name);

    /// Highlights the row that long, in milliseconds, or from now on anew where it is highlighted; it blinks. 0 and
    /// less ends a highlight.
    void holdItem(int milliseconds);

private:
    struct Ops;

    void create(LineState state, std::string lineName, std::string lineIdentity, TranslationInfo* namePrefix);
};

} // namespace DisplayAPI
