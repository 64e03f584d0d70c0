#pragma once

#include <array>
#include <string_view>

namespace eeprog {

struct EntradaSkin {
    std::string_view caption;
    // Behind the program's directory. The case of the file name is the one to open.
    std::string_view archivo;
};

// The entries of the skin menu, in their order; the index picks the file.
inline constexpr std::array<EntradaSkin, 11> skinsdelmenu{{
    {"B-Studio", "skins/B-Studio.skn"},
    {"Galaxy", "skins/galaxy.skn"},
    {"Green", "skins/green.skn"},
    {"Mac", "skins/Mac.skn"},
    {"Media", "skins/Media.skn"},
    {"Metallic", "skins/metallic.skn"},
    {"Paper", "skins/Paper.skn"},
    {"TopSecret", "skins/TopSecret.skn"},
    {"Web-II", "skins/Web-II.skn"},
    {"winaqua", "skins/winaqua.skn"},
    {"Zhelezo", "skins/Zhelezo.skn"},
}};

} // namespace eeprog
