#include "view/fit_into.h"

#include <algorithm>

#include "view/geometry.h"

namespace kivu::view {

void FitInto(forms::Form& form, const QRect& room) {
    const int left = ToTwips(room.left()), top = ToTwips(room.top());
    const int width = std::min(form.Width(), ToTwips(room.width()));
    const int height = std::min(form.Height(), ToTwips(room.height()));
    form.Move(std::max(left, std::min(form.Left(), left + ToTwips(room.width()) - width)),
              std::max(top, std::min(form.Top(), top + ToTwips(room.height()) - height)), width,
              height);
}

}  // namespace kivu::view
