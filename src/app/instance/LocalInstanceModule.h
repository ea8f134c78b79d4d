#pragma once

#include "app/instance/InstanceSocket.h"

#include <QObject>

namespace quillet {

/// The entry of the module.
class LocalInstanceModule : public QObject, public InstanceModule
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.quillet.InstanceModule/1")
    Q_INTERFACES(quillet::InstanceModule)

public:
    [[nodiscard]] std::unique_ptr<InstanceSocket> makeSocket() override;
};

} // namespace quillet
