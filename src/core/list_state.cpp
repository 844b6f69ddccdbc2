#include "core/list_state.h"

#include "text/text.h"

namespace kivu::core {

Front ListState::Mode() const {
    return static_cast<Front>(text::ToNumber(ListMode).value_or(0));
}

Front ListState::ListOfMode() const {
    return Mode() == Front::searchBox ? Front::results : Mode();
}

bool ListState::ModeIsChoice() const {
    return Mode() == Front::choice || Mode() == Front::longList;
}

}  // namespace kivu::core
