/* Preloaded into the viewer: a socket that is about to listen on all addresses of the machine
   listens on the one of the machine itself only. */
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

static long bind_as_asked(int fd, const void* address, socklen_t length)
{
    return syscall(SYS_bind, fd, address, length);
}

static long bind_v4(int fd, struct sockaddr_in address)
{
    if (address.sin_addr.s_addr == htonl(INADDR_ANY))
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return bind_as_asked(fd, &address, sizeof address);
}

/* ::ffff:127.0.0.1 is 127.0.0.1 for a socket that serves both families. */
static long bind_v6(int fd, struct sockaddr_in6 address)
{
    static const struct in6_addr loopback = {
        .s6_addr = {[10] = 0xff, [11] = 0xff, [12] = 127, [15] = 1}};
    if (IN6_IS_ADDR_UNSPECIFIED(&address.sin6_addr))
        address.sin6_addr = loopback;
    return bind_as_asked(fd, &address, sizeof address);
}

int bind(int fd, const struct sockaddr* address, socklen_t length)
{
    if (address && address->sa_family == AF_INET && length >= sizeof(struct sockaddr_in))
        return (int)bind_v4(fd, *(const struct sockaddr_in*)address);
    if (address && address->sa_family == AF_INET6 && length >= sizeof(struct sockaddr_in6))
        return (int)bind_v6(fd, *(const struct sockaddr_in6*)address);
    return (int)bind_as_asked(fd, address, length);
}
