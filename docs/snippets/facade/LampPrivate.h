#pragma once

#include "LampPrivateIfc.h"

namespace DisplayAPI {

/// The lamp of this telephone.
class DISPLAYAPI_EXPORT LampPrivate : public LampPrivateIfc {
public:
    LampPrivate();
    ~LampPrivate() override;

    void blink(int milliseconds) override;
    bool isLit() override;
};

} // namespace DisplayAPI
