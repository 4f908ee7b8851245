#include "tests/platform/linux/recorded_machine.h"

#include <fstream>
#include <map>
#include <stdexcept>

namespace tidewatch::platform {

RecordedMachine::RecordedMachine(const std::string& name) {
    std::ifstream text(std::string(TIDEWATCH_RECORDED_MACHINES) + "/" + name + ".txt");
    if (!text) throw std::runtime_error("no machine " + name);
    std::map<std::string, std::string> files;
    std::string path;
    for (std::string line; std::getline(text, line);) {
        if (line.starts_with("== ")) {
            path = line.substr(3);
            files[path];
        } else {
            files[path] += line + "\n";
        }
    }
    for (const auto& [file, content] : files) write(file, content);
}

}  // namespace tidewatch::platform
