#pragma once

#include <QObject>

namespace quillet {

/// Turns the system's requests to end (SIGTERM, SIGINT, SIGHUP) into a Qt signal of the event loop,
/// for as long as the one object of this class lives. On systems without signals it is never sent.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    explicit TerminationSignals(QObject *parent = nullptr);
    ~TerminationSignals() override;

signals:
    void received(int number);
};

} // namespace quillet
