#pragma once

#include <QDialog>

class QTableView;

namespace quillet {

class LGStation;
class StationInfoModel;

/// The panel that lists every field of one station, read-only. Made for each request, shown once,
/// discarded when closed; edits made meanwhile do not show in it.
class InfoViewController : public QDialog
{
    Q_OBJECT

public:
    explicit InfoViewController(QWidget *parent = nullptr);
    ~InfoViewController() override;

    void setStation(const LGStation &station);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void copySelection() const;

    QTableView *m_list;
    StationInfoModel *m_model = nullptr;
};

} // namespace quillet
