#pragma once

#include <string>

#include "core/form1.h"

namespace kivu::launch {

// Of a name that no batch file gets through to a program as it is.
inline std::string RefusedNameText(const core::Form1& form, const std::string& name) {
    return form.Say("Dieser Name kann einer Batch-Datei nicht sicher übergeben werden:\r",
                    "This name cannot be given to a batch file safely:\r") +
           name;
}

}  // namespace kivu::launch
