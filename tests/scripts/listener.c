/* Binds a socket to the address that is given and prints where it really is. */
#include <arpa/inet.h>
#include <stdio.h>
#include <string.h>
#include <sys/socket.h>

static int print_v4(const char* text)
{
    struct sockaddr_in at = {.sin_family = AF_INET};
    socklen_t length = sizeof at;
    char shown[INET6_ADDRSTRLEN];
    const int fd = socket(AF_INET, SOCK_STREAM, 0);
    inet_pton(AF_INET, text, &at.sin_addr);
    if (fd < 0 || bind(fd, (struct sockaddr*)&at, length) ||
        getsockname(fd, (struct sockaddr*)&at, &length))
        return 1;
    return puts(inet_ntop(AF_INET, &at.sin_addr, shown, sizeof shown)) < 0;
}

static int print_v6(const char* text)
{
    struct sockaddr_in6 at = {.sin6_family = AF_INET6};
    socklen_t length = sizeof at;
    char shown[INET6_ADDRSTRLEN];
    const int fd = socket(AF_INET6, SOCK_STREAM, 0);
    const int off = 0;
    setsockopt(fd, IPPROTO_IPV6, IPV6_V6ONLY, &off, sizeof off);
    inet_pton(AF_INET6, text, &at.sin6_addr);
    if (fd < 0 || bind(fd, (struct sockaddr*)&at, length) ||
        getsockname(fd, (struct sockaddr*)&at, &length))
        return 1;
    return puts(inet_ntop(AF_INET6, &at.sin6_addr, shown, sizeof shown)) < 0;
}

int main(int count, char** arguments)
{
    if (count != 2)
        return 2;
    return strchr(arguments[1], ':') ? print_v6(arguments[1]) : print_v4(arguments[1]);
}
