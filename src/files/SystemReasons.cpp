#include "files/SystemReasons.h"

#include <algorithm>
#include <array>
#include <cerrno>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

namespace quillet {

namespace {

struct Reason
{
    std::errc condition;
    const char *text;
};

// clang-format off
constexpr std::array reasons{
    Reason{std::errc::no_space_on_device, "kDiskFullReason"},
    Reason{std::errc::permission_denied, "kNotAllowedReason"},
    Reason{std::errc::operation_not_permitted, "kNotAllowedReason"},
    Reason{std::errc::read_only_file_system, "kReadOnlyDiskReason"},
    Reason{std::errc::no_such_file_or_directory, "kNotThereReason"},
    Reason{std::errc::not_a_directory, "kNotThereReason"},
    Reason{std::errc::io_error, "kDiskFaultReason"},
    Reason{std::errc::is_a_directory, "kFolderInPlaceReason"},
    Reason{std::errc::directory_not_empty, "kFolderInPlaceReason"},
    Reason{std::errc::file_exists, "kNameTakenReason"},
    Reason{std::errc::filename_too_long, "kNameTooLongReason"},
    Reason{std::errc::file_too_large, "kTooLargeForDiskReason"},
    Reason{std::errc::device_or_resource_busy, "kInUseReason"},
    Reason{std::errc::text_file_busy, "kInUseReason"},
    Reason{std::errc::resource_unavailable_try_again, "kInUseReason"},
    Reason{std::errc::operation_would_block, "kInUseReason"}, // the same, on some systems
    Reason{std::errc::no_lock_available, "kInUseReason"},
    Reason{std::errc::too_many_files_open, "kTooManyOpenReason"},
    Reason{std::errc::too_many_files_open_in_system, "kTooManyOpenReason"},
    Reason{std::errc::not_enough_memory, "kOutOfMemoryReason"},
    Reason{std::errc::no_such_device, "kDiskRemovedReason"},
    Reason{std::errc::no_such_device_or_address, "kDiskRemovedReason"},
    Reason{std::errc::not_connected, "kDiskRemovedReason"},
    Reason{std::errc::timed_out, "kNoAnswerReason"},
    Reason{std::errc::host_unreachable, "kNoAnswerReason"},
    Reason{std::errc::network_down, "kNoAnswerReason"},
    Reason{std::errc::network_unreachable, "kNoAnswerReason"},
    Reason{std::errc::connection_reset, "kNoAnswerReason"},
    Reason{std::errc::not_supported, "kNotSupportedReason"},
    Reason{std::errc::operation_not_supported, "kNotSupportedReason"}, // the same, on some systems
    Reason{std::errc::function_not_supported, "kNotSupportedReason"},
    Reason{std::errc::invalid_argument, "kNotSupportedReason"},
};
// clang-format on

} // namespace

QString systemReason(int number)
{
    return systemReason(std::error_code(number, std::generic_category()));
}

QString systemReason(const std::error_code &code)
{
    if (!code)
        return qtTrId("kUntoldReason");
    const auto *const found =
        std::find_if(reasons.begin(), reasons.end(),
                     [&code](const Reason &reason) { return code == reason.condition; });
    if (found != reasons.end())
        return qtTrId(found->text);
#ifdef EDQUOT
    if (code.value() == EDQUOT) // which the standard does not know
        return qtTrId("kQuotaReason");
#endif
#ifdef ESTALE
    if (code.value() == ESTALE)
        return qtTrId("kDiskRemovedReason");
#endif
    return qtTrId("kOtherReason").arg(code.value());
}

QString lastSystemReason()
{
#ifdef Q_OS_WIN
    return systemReason({static_cast<int>(::GetLastError()), std::system_category()});
#else
    return systemReason(errno);
#endif
}

void forgetSystemReason()
{
#ifdef Q_OS_WIN
    ::SetLastError(0);
#endif
    errno = 0;
}

} // namespace quillet
