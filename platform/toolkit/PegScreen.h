#pragma once

class PegThing;

/// The screen as the toolkit sees it: what has to be painted again, and when.
class PegScreen {
public:
    virtual ~PegScreen() = default;

    /// Marks the area of `thing` as to be painted again. GUI thread only.
    virtual void Invalidate(PegThing* thing) = 0;

    /// Paints what is marked if a frame is due; otherwise the loop does so when it next has nothing else to do.
    virtual void Update() = 0;
};
