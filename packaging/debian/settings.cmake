# The settings of this build that differ from their defaults in CMakeLists.txt; ./dev package writes its arguments here.
