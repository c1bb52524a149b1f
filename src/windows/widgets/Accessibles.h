#pragma once

namespace qismora {

/// Lets screen readers see what acts though it is no button of the toolkit. Once is enough.
void MakeAccessible();

}  // namespace qismora
