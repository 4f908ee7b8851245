// To be preloaded: no name of a host is ever found, and no look-up comes back, as with a silent name server.

#include <netdb.h>
#include <unistd.h>

extern "C" int getaddrinfo(const char*, const char*, const addrinfo*, addrinfo**) {
    constexpr unsigned longerThanAnyTest = 3600;
    sleep(longerThanAnyTest);
    return EAI_AGAIN;
}
