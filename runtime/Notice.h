#pragma once

#include <string>

namespace kelvaro {

/// Something to tell the user: the text of a message box, and the control that takes the focus after it.
struct Notice {
    enum class Icon { Information, Critical, None };

    std::string text;
    Icon icon = Icon::Information;
    std::string focus{}; ///< name of the control; empty where the focus stays
};

} // namespace kelvaro
