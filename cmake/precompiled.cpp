// The translation unit that carries the precompiled header; see cmake/CorvanaTargets.cmake.
