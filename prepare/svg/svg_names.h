// SPDX-License-Identifier: MIT
// Names of elements in a picture. A prefix is seen through where it stands for the language of
// pictures; elements of other languages have no name here.
#pragma once

#include <pugixml.hpp>
#include <string_view>

namespace torvik::svg {

// "path" for <path> and <svg:path>; empty for <sodipodi:path> and for what is no element.
std::string_view svgName(pugi::xml_node node);

// The element that href or xlink:href names, without its "#"; empty where it names none within the
// picture.
std::string_view referenceOf(pugi::xml_node node);

// The element's name within url(#name), also in quotes; empty where the text is none.
std::string_view urlReference(std::string_view text);
// The same; `rest` becomes what stands behind.
std::string_view urlReference(std::string_view text, std::string_view& rest);

} // namespace torvik::svg
