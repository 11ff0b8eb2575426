#include "widgets/KestrelApplication.h"

#include "toolkit/PegThing.h"
#include "utilities/ICC.h"
#include "widgets/ApplicationWatch.h"

#include <ctime>
#include <functional>
#include <gmock/gmock.h>
#include <memory>
#include <thread>

using testing::ElementsAre;

namespace {

/// Puts the application back that was current before the test.
class KestrelApplicationTest : public testing::Test {
protected:
    ~KestrelApplicationTest() override { KestrelApplication::setCurrentApplication(mBefore); }

private:
    KestrelApplication* const mBefore = KestrelApplication::getCurrentApplication();
};

class Observer : public PegThing {
public:
    Observer(std::string name, std::vector<std::string>& log) : mName(std::move(name)), mLog(log) {}

    int Message(const PegMessage& message) override
    {
        EXPECT_EQ(message.wType, PM_APPLICATION_CHANGED);
        EXPECT_EQ(message.pTarget, this);
        mLog.push_back(mName + ":" + ICC::fromUNICODEtoUTF8(*static_cast<const PegString*>(message.pData)));
        if (whenTold)
            whenTold();
        return 0;
    }

    std::function<void()> whenTold;

private:
    std::string mName;
    std::vector<std::string>& mLog;
};

PegString text(const char* utf8)
{
    return ICC::fromUTF8toUNICODE(utf8);
}

TEST_F(KestrelApplicationTest, PlatformHasMadeOne)
{
    ASSERT_NE(KestrelApplication::getCurrentApplication(), nullptr);
    EXPECT_EQ(KestrelApplication().getHardwareVariant(), 1);
    EXPECT_EQ(KestrelApplication().getSoftwareType(), 2);
}

TEST_F(KestrelApplicationTest, CurrentOneThatDiesLeavesNone)
{
    {
        KestrelApplication application;
        KestrelApplication::setCurrentApplication(&application);
    }
    EXPECT_EQ(KestrelApplication::getCurrentApplication(), nullptr);
}

TEST_F(KestrelApplicationTest, AnotherOneThatDiesChangesNothing)
{
    auto* current = KestrelApplication::getCurrentApplication();
    {
        KestrelApplication other;
    }
    EXPECT_EQ(KestrelApplication::getCurrentApplication(), current);
}

TEST_F(KestrelApplicationTest, NoApplicationIsVariantOne)
{
    KestrelApplication application;
    application.setHardwareVariant(0);
    EXPECT_EQ(KestrelApplication::getHardwareVariant(nullptr), 1);
    EXPECT_EQ(KestrelApplication::getHardwareVariant(&application), 0);
}

TEST_F(KestrelApplicationTest, VariantAndTypeCanBeReadFromAnyThread)
{
    KestrelApplication application;
    application.setHardwareVariant(0);
    application.setSoftwareType(1);
    std::thread([&] {
        EXPECT_EQ(application.getHardwareVariant(), 0);
        EXPECT_EQ(application.getSoftwareType(), 1);
    }).join();
}

TEST_F(KestrelApplicationTest, EachSetterKeepsItsTextAndSendsTheLocale)
{
    KestrelApplication application;
    std::vector<std::string> log;
    Observer observer("a", log);
    application.addObserver(&observer);
    application.setLocale(text("de"));
    application.setDateFormat(text("DD.MM."));
    application.setTimeFormat(text("24h"));
    EXPECT_THAT(log, ElementsAre("a:de", "a:de", "a:de"));
    EXPECT_EQ(application.getLocale(), text("de"));
    EXPECT_EQ(application.getDateFormat(), text("DD.MM."));
    EXPECT_EQ(application.getTimeFormat(), text("24h"));
}

TEST_F(KestrelApplicationTest, TellsObserversInOrderAndOnce)
{
    KestrelApplication application;
    std::vector<std::string> log;
    Observer first("a", log), second("b", log);
    for (PegThing* observer : {&first, &second, &first})
        application.addObserver(observer);
    application.addObserver(nullptr);
    application.setLocale(text("x"));
    EXPECT_THAT(log, ElementsAre("a:x", "b:x"));
}

TEST_F(KestrelApplicationTest, ObserversMayComeAndGoWhileTheyAreTold)
{
    KestrelApplication application;
    std::vector<std::string> log;
    Observer first("a", log), second("b", log), third("c", log);
    first.whenTold = [&] {
        application.removeObserver(&first);
        application.removeObserver(&second);
        application.addObserver(&third);
    };
    application.addObserver(&first);
    application.addObserver(&second);
    application.setLocale(text("x"));
    EXPECT_THAT(log, ElementsAre("a:x"));
    application.setLocale(text("y"));
    EXPECT_THAT(log, ElementsAre("a:x", "c:y"));
}

TEST_F(KestrelApplicationTest, RemovedObserverIsTakenOutOfEveryApplication)
{
    KestrelApplication former, next;
    std::vector<std::string> log;
    Observer gone("a", log), stays("b", log);
    for (KestrelApplication* application : {&former, &next}) {
        application->addObserver(&gone);
        application->addObserver(&stays);
    }
    KestrelApplication::removeObserver(&gone);
    former.setLocale(text("x"));
    next.setLocale(text("y"));
    EXPECT_THAT(log, ElementsAre("b:x", "b:y"));
}

TEST_F(KestrelApplicationTest, WatchEndsWhicheverApplicationIsCurrent)
{
    KestrelApplication former, next;
    std::vector<std::string> log;
    Observer observer("a", log);
    for (KestrelApplication* current : {&next, static_cast<KestrelApplication*>(nullptr)}) {
        KestrelApplication::setCurrentApplication(&former);
        const auto watch = std::make_unique<ApplicationWatch>(observer);
        KestrelApplication::setCurrentApplication(current);
        former.setLocale(text("x"));
    }
    former.setLocale(text("y"));
    EXPECT_THAT(log, ElementsAre("a:x", "a:x"));
}

TEST_F(KestrelApplicationTest, EachApplicationTellsItsOwnObservers)
{
    KestrelApplication one, other;
    std::vector<std::string> log;
    Observer first("a", log), second("b", log);
    one.addObserver(&first);
    other.addObserver(&second);
    other.setLocale(text("x"));
    one.setLocale(text("y"));
    EXPECT_THAT(log, ElementsAre("b:x", "a:y"));
}

TEST_F(KestrelApplicationTest, ApplicationMayDieWhileItTells)
{
    auto application = std::make_unique<KestrelApplication>();
    std::vector<std::string> log;
    Observer first("a", log), second("b", log);
    first.whenTold = [&] { application.reset(); };
    application->addObserver(&first);
    application->addObserver(&second);
    application->setLocale(text("x"));
    EXPECT_THAT(log, ElementsAre("a:x"));
}

TEST_F(KestrelApplicationTest, ObserverThatComesBackWhileOthersAreToldHearsOfTheNextChange)
{
    KestrelApplication application;
    std::vector<std::string> log;
    Observer first("a", log), second("b", log);
    first.whenTold = [&] {
        KestrelApplication::removeObserver(&second);
        application.addObserver(&second);
    };
    application.addObserver(&first);
    application.addObserver(&second);
    application.setLocale(text("x"));
    EXPECT_THAT(log, ElementsAre("a:x"));
    first.whenTold = nullptr;
    application.setLocale(text("y"));
    EXPECT_THAT(log, ElementsAre("a:x", "a:y", "b:y"));
}

TEST_F(KestrelApplicationTest, ChangesThatAnObserverMakesAreToldWithinItsOwn)
{
    KestrelApplication application;
    std::vector<std::string> log;
    Observer first("a", log), second("b", log), third("c", log);
    first.whenTold = [&] {
        if (application.getLocale() == text("y"))
            return;
        application.setLocale(text("y"));
        KestrelApplication::removeObserver(&second);
    };
    for (PegThing* observer : {&first, &second, &third})
        application.addObserver(observer);
    application.setLocale(text("x"));
    EXPECT_THAT(log, ElementsAre("a:x", "a:y", "b:y", "c:y", "c:y"));
}

TEST_F(KestrelApplicationTest, TheLastObserverMayLeaveWithItsApplicationWhileItIsTold)
{
    auto application = std::make_unique<KestrelApplication>();
    KestrelApplication other;
    std::vector<std::string> log;
    Observer observer("a", log);
    observer.whenTold = [&] {
        KestrelApplication::removeObserver(&observer);
        application.reset();
        other.addObserver(&observer);
    };
    application->addObserver(&observer);
    application->setLocale(text("x"));
    EXPECT_THAT(log, ElementsAre("a:x"));
}

/// What the calling thread has had of the processor.
double secondsUsed()
{
    timespec time;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

struct SilentObserver : PegThing {
    int Message(const PegMessage&) override { return 0; }
};

TEST_F(KestrelApplicationTest, ManyObserversCostLittleEach)
{
    KestrelApplication application;
    std::vector<SilentObserver> observers(100'000);
    const double start = secondsUsed();
    for (SilentObserver& observer : observers)
        application.addObserver(&observer);
    application.setLocale(text("x"));
    for (SilentObserver& observer : observers)
        KestrelApplication::removeObserver(&observer);
    EXPECT_LT(secondsUsed() - start, 2);
}

} // namespace
