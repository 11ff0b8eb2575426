#include "Cases.h"
#include "Frames.h"
#include "Phone.h"

#include "DisplayAPI/Form.h"
#include "DisplayAPI/SliderItem.h"
#include "host/lcd/Lcd.h"

#include <memory>

namespace bench {

namespace {

constexpr int FIELDS = 200;
constexpr int STEPS = 100;

/// A form that a worker fills, and which is on the screen then.
class ShownForm {
public:
    ShownForm()
    {
        mForm = std::make_unique<DisplayAPI::Form>(DisplayAPI::Form::HALF_AND_HALF);
        for (int i = 0; i < FIELDS; ++i)
            mForm->append(new DisplayAPI::SliderItem("Field " + std::to_string(i)));
        mPhone.display().setCurrent(mForm.get());
        waitUntilShown();
    }
    ShownForm(const ShownForm&) = delete;
    ShownForm& operator=(const ShownForm&) = delete;
    ~ShownForm() { mPhone.display().setCurrent(nullptr); }

private:
    Phone mPhone;
    std::unique_ptr<DisplayAPI::Form> mForm;
};

/// Milliseconds on a telephone that runs already.
double build()
{
    Phone phone;
    const auto start = Clock::now();
    DisplayAPI::Form form(DisplayAPI::Form::HALF_AND_HALF);
    for (int i = 0; i < FIELDS; ++i)
        form.append(new DisplayAPI::SliderItem("Field " + std::to_string(i)));
    phone.display().setCurrent(&form);
    waitUntilShown();
    const double spent = secondsSince(start) * 1e3;
    phone.display().setCurrent(nullptr);
    return spent;
}

double step()
{
    ShownForm shown;
    return cpuToFrame(STEPS, [](int) { return PK_DOWN; });
}

/// The labels have been painted on the way down.
double stepBack()
{
    ShownForm shown;
    cpuToFrame(STEPS, [](int) { return PK_DOWN; });
    return cpuToFrame(STEPS, [](int) { return PK_UP; });
}

double change()
{
    ShownForm shown;
    return cpuToFrame(STEPS, [](int i) { return i % 2 == 0 ? PK_RIGHT : PK_LEFT; });
}

} // namespace

std::vector<Case> formCases()
{
    return {{SCREEN, "Form of 200 sliders, built from a worker until shown", "ms", build},
            {SCREEN, "Form of 200 sliders, one step down to a label never shown before", "us CPU", step},
            {SCREEN, "Form of 200 sliders, one step back to finished frame", "us CPU", stepBack},
            {SCREEN, "Form of 200 sliders, key to finished frame", "us CPU", change}};
}

} // namespace bench
