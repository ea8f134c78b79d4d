#include "app/instance/LocalInstanceModule.h"

#include "app/instance/LocalInstanceSocket.h"

namespace quillet {

std::unique_ptr<InstanceSocket> LocalInstanceModule::makeSocket()
{
    return std::make_unique<LocalInstanceSocket>();
}

} // namespace quillet
