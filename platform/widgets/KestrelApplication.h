#pragma once

#include "toolkit/PString.h"

#include <atomic>

class PegThing;

/// What is the same for every screen of the telephone: hardware variant, software type, locale and formats.
///
/// The platform makes one before main() and makes it current. Variant and software type may be read from any thread;
/// everything else is the GUI thread's.
class KestrelApplication {
public:
    KestrelApplication();
    KestrelApplication(const KestrelApplication&) = delete;
    KestrelApplication& operator=(const KestrelApplication&) = delete;

    /// A current application that dies leaves none. Its observers are told nothing more.
    ~KestrelApplication();

    /// The application in force, or null. From any thread.
    static KestrelApplication* getCurrentApplication();

    /// Not owned; null leaves none.
    static void setCurrentApplication(KestrelApplication* application);

    /// The application's variant; 1 where `application` is null.
    static int getHardwareVariant(const KestrelApplication* application);

    /// 0 is the 208 x 42 panel, 1 the 240 x 128 one and its narrow form. Starts at 1.
    int getHardwareVariant() const;
    void setHardwareVariant(int variant);

    /// Any number travels through. Starts at 2, unknown software.
    int getSoftwareType() const;
    void setSoftwareType(int type);

    /// What PM_APPLICATION_CHANGED says in `iData` has changed.
    enum Change : int { LOCALE, FORMAT };

    /// Each setter keeps the text and sends every observer PM_APPLICATION_CHANGED with the locale.
    void setLocale(const PegString& locale);
    void setDateFormat(const PegString& format);
    void setTimeFormat(const PegString& format);

    const PegString& getLocale() const;
    const PegString& getDateFormat() const;
    const PegString& getTimeFormat() const;

    /// Observers are told in the order in which they were added, and may add and remove themselves meanwhile. Not
    /// owned.
    void addObserver(PegThing* observer);

    /// Takes it out of every application: another one may have become current since it was added.
    static void removeObserver(PegThing* observer);

private:
    void notifyObservers(Change change);

    std::atomic<int> mHardwareVariant{1};
    std::atomic<int> mSoftwareType{2};
    PegString mLocale;
    PegString mDateFormat;
    PegString mTimeFormat;
};
