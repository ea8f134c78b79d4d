#pragma once

#include "framework/DocumentController.h"
#include "framework/Prompts.h"

#include <QObject>
#include <QStringList>

#include <memory>

namespace quillet {

/// The running application: owns the document controller, gives every document its window and ends
/// the program. Made by main, or by a test with prompts of its own.
class AppDelegate : public QObject
{
    Q_OBJECT

public:
    /// The prompts must outlive the delegate.
    explicit AppDelegate(Prompts &prompts, QObject *parent = nullptr);
    ~AppDelegate() override;

    [[nodiscard]] DocumentController &documents() { return m_documents; }
    /// What the open panel offers, channel lists first.
    [[nodiscard]] static QStringList nameFilters();

    /// Opens the files the program was started with; without any, an empty window.
    void applicationDidFinishLaunching(const QStringList &paths);
    /// Asks about unsaved changes, then quits.
    void terminate();

protected:
    /// Files that the platform hands to the running program, and its wish to quit.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] std::unique_ptr<Document> makeDocument();

    DocumentController m_documents;
};

} // namespace quillet
