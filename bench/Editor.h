#pragma once

#include "bench/IdleOutlets.h"
#include "document/TLLDocument.h"
#include "editor/ViewController.h"

namespace quillet::bench {

/// An editor without a window that shows all stations of a file, TV and radio, as one list with the
/// numbers 1, 2, 3 and so on.
class Editor
{
public:
    explicit Editor(const QByteArray &file);

    /// The current list, of which the filter and the move take their stations.
    [[nodiscard]] StationList &stations() { return *m_document.stations(); }
    [[nodiscard]] ViewController &controller() { return m_controller; }
    [[nodiscard]] bool isReady() const { return m_isReady; }

    /// Leaves the stations as they are right after reading: no name asked for yet, and their
    /// entries shared with somebody else (the document's tree, here the stations before).
    void makeStationsAnew();
    void search(const QString &text);
    /// Whether all stations are there and their numbers strictly increase from 1 on.
    [[nodiscard]] bool isNumberedWell();

private:
    IdleOutlets m_outlets;
    TLLDocument m_document;
    ViewController m_controller;
    StationList m_before;
    bool m_isReady = false;
};

} // namespace quillet::bench
