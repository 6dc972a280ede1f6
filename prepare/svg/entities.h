// SPDX-License-Identifier: MIT
// Entities that a picture declares for itself (<!ENTITY ns_svg "http://...">), as drawing programs
// write them. Those of other files are left out and never fetched.
#pragma once

#include <string>
#include <string_view>

namespace torvik::svg {

// The text with the entities put in; empty where it declares none. Raises RunTimeError where they
// swell to more than ten million characters or hold themselves.
std::string withEntities(std::string_view text);

} // namespace torvik::svg
