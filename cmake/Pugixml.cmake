# pugixml::pugixml: the system's, or for Windows built from its source.
if(TORVIK_PUGIXML_SOURCE)
  add_library(torvik_pugixml STATIC "${TORVIK_PUGIXML_SOURCE}/src/pugixml.cpp")
  target_include_directories(torvik_pugixml SYSTEM PUBLIC "${TORVIK_PUGIXML_SOURCE}/src")
  add_library(pugixml::pugixml ALIAS torvik_pugixml)
else()
  find_package(pugixml REQUIRED)
endif()
