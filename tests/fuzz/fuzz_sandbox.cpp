// Sandbox metadata, in files that the process itself may have written.

#include <algorithm>
#include <string>

#include "platform/linux/process_identity.h"
#include "tests/fuzz/fuzz_target.h"

namespace tidewatch::fuzz {

void check(std::string_view input) {
    if (const auto id = platform::flatpakId(input)) {
        require(!id->empty() && id->find('\n') == std::string::npos, "an id is a line with something on it");
        require(input.find(*id) != std::string_view::npos, "an id is told, not made");
        require(platform::flatpakId("[Application]\nname=" + *id + "\n") == id, "an id reads back the same");
        require(platform::flatpakId(std::string(input) + "\n[Application]\nname=another") == id,
                "the first id counts");
    }
    if (const auto id = platform::snapId(input)) {
        require(id->find('_', 1) < id->size() - 1, "an id has two parts");
        require(platform::snapId(std::string(input) + "\n0::/snap.another.one.scope") == id,
                "the first id counts");
    }
}

}  // namespace tidewatch::fuzz
