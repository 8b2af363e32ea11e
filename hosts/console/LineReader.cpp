#include "hosts/console/LineReader.h"

#include <iostream>

namespace zilvo::console {

Typed StreamReader::read(const std::string& prompt) {
    if (prompts_) std::cout << prompt << std::flush;
    std::string line;
    if (std::getline(in_, line)) return {Typed::How::Line, line};
    if (prompts_) std::cout << '\n';
    return {Typed::How::End, {}};
}

} // namespace zilvo::console
