#pragma once

#include <QDialog>

namespace quillet {

/// The program's name, version and licence, and the libraries it uses.
class AboutWindow : public QDialog
{
    Q_OBJECT

public:
    explicit AboutWindow(QWidget *parent = nullptr);
};

} // namespace quillet
