#pragma once

#include "framework/Prompts.h"

namespace quillet {

/// The questions as the platform's own dialogs: message boxes, file dialogs and print dialogs,
/// modal to their window and never run in an event loop of their own. A dialog belongs to its
/// window and goes, unanswered, with it. Dialogs and their controls carry object names: "alert"
/// with "alertButton0", "alertButton1" and so on, "alertTextField" and "alertCheckBox";
/// "openPanel"; "savePanel"; "printPanel".
class QtPrompts : public Prompts
{
public:
    void showAlert(QWidget *window, const Alert &alert,
                   std::function<void(const AlertAnswer &)> done) override;
    void showOpenPanel(QWidget *window, const OpenPanel &panel,
                       std::function<void(const QStringList &)> done) override;
    void showSavePanel(QWidget *window, const SavePanel &panel,
                       std::function<void(const QString &)> done) override;
    void showPrintPanel(QWidget *window, const PrintPanel &panel,
                        std::function<void(QPrinter &)> print) override;
    std::function<void()> showProgress(QWidget *window, const QString &message,
                                       std::function<void()> cancelled) override;
};

} // namespace quillet
