#include "tests/support/limits.h"

#include <QtGlobal>

#include <linux/capability.h>
#include <sys/syscall.h>

#include <array>

#include <unistd.h>

namespace {

using rights = std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3>;

rights read_rights()
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    rights all{};
    if (syscall(SYS_capget, &header, all.data()) != 0)
        qFatal("cannot read the rights of the test");
    return all;
}

void set_effective(unsigned effective)
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    rights all = read_rights();
    all[0].effective = effective;
    if (syscall(SYS_capset, &header, all.data()) != 0)
        qFatal("cannot change the rights of the test");
}

} // namespace

without_override::without_override()
    : effective(read_rights()[0].effective)
{
    constexpr unsigned override = 1U << CAP_DAC_OVERRIDE | 1U << CAP_DAC_READ_SEARCH;
    set_effective(effective & ~override);
}

without_override::~without_override()
{
    set_effective(effective);
}

lower_limit::lower_limit(int resource, rlim_t limit)
    : resource(resource)
{
    getrlimit(static_cast<__rlimit_resource>(resource), &before);
    const rlimit lower{limit, before.rlim_max};
    if (setrlimit(static_cast<__rlimit_resource>(resource), &lower) != 0)
        qFatal("cannot lower a limit");
}

lower_limit::~lower_limit()
{
    setrlimit(static_cast<__rlimit_resource>(resource), &before);
}
