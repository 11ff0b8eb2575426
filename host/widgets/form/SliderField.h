#pragma once

#include "host/widgets/form/Decimal.h"
#include "host/widgets/form/FormField.h"

namespace host {

/// A value between two others: a bar and a number. Left and right move it by the interval, where texts are read from
/// the right the other way round; at the end it stays.
class SliderField : public FormField {
public:
    /// 0 to 100 by 1, and 0 at first. A value that is out of range by then becomes the nearest that is in it; a least
    /// above the most counts as the most.
    void setLeast(const Decimal& value);
    void setMost(const Decimal& value);
    void setInterval(const Decimal& value) { mInterval = value; }
    void setNumber(const Decimal& value);

    const Decimal& most() const { return mMost; }
    const Decimal& number() const { return mNumber; }

    PegString value() const override;
    bool key(int key) override;

protected:
    void drawValue(PegPainter& painter, const PegRect& cell) const override;

private:
    bool step(bool up);

    Decimal mLeast = *Decimal::fromText("0");
    Decimal mMost = *Decimal::fromText("100");
    Decimal mInterval = *Decimal::fromText("1");
    Decimal mNumber;
};

} // namespace host
