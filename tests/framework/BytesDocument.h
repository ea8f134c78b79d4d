#pragma once

#include "framework/Document.h"
#include "framework/WindowController.h"
#include "testing/TestFiles.h"

namespace quillet::testing {

/// A window without content that counts how often it was refilled.
class CountingWindow : public WindowController
{
public:
    CountingWindow();
    void refill() override { ++refills; }
    [[nodiscard]] bool validateUserInterfaceItem(const QString &) const override { return true; }

    int refills = 0;
};

/// A document whose content is its bytes. Bytes that start with "bad" are refused with an error of
/// its own; no bytes at all are refused without one; for those that start with "hog" there is not
/// enough memory.
class BytesDocument : public Document
{
public:
    bool readFromData(const QByteArray &data, const QString &typeName, Error &error) override;
    [[nodiscard]] QByteArray dataOfType(const QString &typeName, Error &error) override;
    void makeWindowControllers() override;

    void makeBytes(const QString &typeName, SavePurpose purpose,
                   const SaveJob::Client::Made &made) override;

    /// A change by the user.
    void edit(const QByteArray &bytes);
    [[nodiscard]] CountingWindow &countingWindow() const;

    QByteArray content;
    std::function<void()> duringReview; ///< what happens while a save is reviewed
    /// What takes so long of the saves that it is done on another thread; none: nothing does.
    BackgroundWork::Work slowWork;
    bool hadWaitCursor = false; ///< when it was read last
    bool isUnwritable = false;  ///< dataOfType fails
};

} // namespace quillet::testing
