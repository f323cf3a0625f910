#include "linux/renderer/Confinement.h"

#include <malloc.h>
#include <pthread.h>
#include <seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstddef>
#include <memory>

namespace orken::desktop::renderer {

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool kHasSanitizers = true;
#else
constexpr bool kHasSanitizers = false;
#endif

constexpr int kNiceness = 5;
constexpr rlim_t kAddressSpace = rlim_t{512} * 1024 * 1024;
/// Documents nest 64 deep at most.
constexpr std::size_t kThreadStack = std::size_t{1} * 1024 * 1024;

bool limit(int resource, rlim_t value)
{
    const rlimit both{.rlim_cur = value, .rlim_max = value};
    return setrlimit(static_cast<__rlimit_resource>(resource), &both) == 0;
}

/// Threads take no more of the address space than they need.
bool keepThreadsSmall()
{
    pthread_attr_t attributes;
    if (pthread_attr_init(&attributes) != 0) {
        return false;
    }
    const bool isSet =
        pthread_attr_setstacksize(&attributes, kThreadStack) == 0 && pthread_setattr_default_np(&attributes) == 0;
    pthread_attr_destroy(&attributes);
    return isSet && mallopt(M_ARENA_MAX, 1) == 1;
}

struct FilterEnd {
    void operator()(scmp_filter_ctx context) const { seccomp_release(context); }
};

using Filter = std::unique_ptr<void, FilterEnd>;

/// What drawing, its threads, memory and the socket need.
constexpr int kAllowed[] = {
    SCMP_SYS(brk),
    SCMP_SYS(clock_gettime),
    SCMP_SYS(clock_nanosleep),
    SCMP_SYS(exit),
    SCMP_SYS(exit_group),
    SCMP_SYS(futex),
    SCMP_SYS(getpid),
    SCMP_SYS(getrandom),
    SCMP_SYS(gettid),
    SCMP_SYS(madvise),
    SCMP_SYS(mremap),
    SCMP_SYS(munmap),
    SCMP_SYS(nanosleep),
    SCMP_SYS(poll),
    SCMP_SYS(read),
    SCMP_SYS(recvfrom),
    SCMP_SYS(recvmsg),
    SCMP_SYS(restart_syscall),
    SCMP_SYS(rseq),
    SCMP_SYS(rt_sigaction),
    SCMP_SYS(rt_sigprocmask),
    SCMP_SYS(rt_sigreturn),
    SCMP_SYS(sched_getaffinity),
    SCMP_SYS(sched_yield),
    SCMP_SYS(sendmsg),
    SCMP_SYS(sendto),
    SCMP_SYS(set_robust_list),
    SCMP_SYS(sigaltstack),
    SCMP_SYS(write),
};

/// What libraries try and can do without.
constexpr int kRefused[] = {
    SCMP_SYS(access), SCMP_SYS(faccessat), SCMP_SYS(newfstatat), SCMP_SYS(open), SCMP_SYS(openat),
    SCMP_SYS(prctl),  SCMP_SYS(readlink),  SCMP_SYS(readlinkat), SCMP_SYS(stat),
};

bool addRules(scmp_filter_ctx context)
{
    bool added = true;
    for (const int call : kAllowed) {
        added = added && seccomp_rule_add(context, SCMP_ACT_ALLOW, call, 0) == 0;
    }
    for (const int call : kRefused) {
        added = added && seccomp_rule_add(context, SCMP_ACT_ERRNO(EACCES), call, 0) == 0;
    }
    // Memory, but none that could be run.
    for (const int call : {SCMP_SYS(mmap), SCMP_SYS(mprotect)}) {
        added = added && seccomp_rule_add(context, SCMP_ACT_ALLOW, call, 1,
                                          SCMP_A2(SCMP_CMP_MASKED_EQ, static_cast<scmp_datum_t>(PROT_EXEC), 0)) == 0;
    }
    // Its own end by a failed assertion; no signal to anybody else.
    return added && seccomp_rule_add(context, SCMP_ACT_ALLOW, SCMP_SYS(tgkill), 1,
                                     SCMP_A0(SCMP_CMP_EQ, static_cast<scmp_datum_t>(getpid()))) == 0;
}

} // namespace

bool limitResources()
{
    // The page behind the animation comes first.
    return setpriority(PRIO_PROCESS, 0, kNiceness) == 0 && prctl(PR_SET_PDEATHSIG, SIGKILL) == 0 &&
           prctl(PR_SET_DUMPABLE, 0) == 0 && limit(RLIMIT_CORE, 0) &&
           (kHasSanitizers || (keepThreadsSmall() && limit(RLIMIT_AS, kAddressSpace)));
}

bool forbidSystemCalls()
{
    // Loading the filter also sets "no new privileges". The drawing threads run already, and get it as well.
    const Filter filter(seccomp_init(SCMP_ACT_KILL_PROCESS));
    return filter && seccomp_attr_set(filter.get(), SCMP_FLTATR_CTL_TSYNC, 1) == 0 && addRules(filter.get()) &&
           seccomp_load(filter.get()) == 0;
}

} // namespace orken::desktop::renderer
