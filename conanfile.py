# SPDX-License-Identifier: MIT
"""Conan recipe: `conan create .` in a clone."""

from conan import ConanFile
from conan.tools.cmake import CMake, CMakeDeps, CMakeToolchain, cmake_layout


class DialogManagerRecipe(ConanFile):
    name = "dialogmanager"
    version = "0.1.0"
    license = "MIT"
    description = "Switches dialogs, remembers the way back, shows popups by priority"
    topics = ("gui", "embedded", "dialogs")
    settings = "os", "compiler", "build_type", "arch"
    options = {
        "shared": [True, False],
        "loader": [True, False],
        "assertions": [True, False],
        "trace_level": ["DEBUG", "WARNING", "ERROR", "OFF"],
    }
    default_options = {"shared": False, "loader": True, "assertions": False, "trace_level": "DEBUG"}
    exports_sources = ("Adapters/*", "CMake/*", "CMakeLists.txt", "Companions/*", "Debugger/*", "Docs/*.xsd",
                       "Include/*", "Inspection/*", "LICENSE", "Loader/*", "Scenario/*", "Simulator/*", "Source/*",
                       "TestSupport/*", "Widgets/*")

    def requirements(self):
        if self.options.loader:
            self.requires("expat/2.5.0")

    def layout(self):
        cmake_layout(self)

    def generate(self):
        CMakeDeps(self).generate()
        toolchain = CMakeToolchain(self)
        toolchain.cache_variables["DIALOGMANAGER_SHARED"] = bool(self.options.shared)
        toolchain.cache_variables["DIALOGMANAGER_BUILD_LOADER"] = bool(self.options.loader)
        toolchain.cache_variables["DIALOGMANAGER_ASSERTIONS"] = bool(self.options.assertions)
        toolchain.cache_variables["DIALOGMANAGER_TRACE_LEVEL"] = str(self.options.trace_level)
        toolchain.generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        CMake(self).install()

    def package_info(self):
        # The package brings a CMake configuration of its own, which knows its components.
        self.cpp_info.set_property("cmake_find_mode", "none")
        self.cpp_info.builddirs.append("lib/cmake/DialogManager")
