"""A wheel that carries the library is for one system, but for every Python of it."""

from pathlib import Path

from setuptools import setup
from wheel.bdist_wheel import bdist_wheel

CARRIES_LIBRARY = any(Path("tavrinlib").glob("*TavrinLib.*"))


class Wheel(bdist_wheel):
    def finalize_options(self):
        super().finalize_options()
        self.root_is_pure = not CARRIES_LIBRARY

    def get_tag(self):
        return "py3", "none", super().get_tag()[2]


setup(cmdclass={"bdist_wheel": Wheel})
