# SPDX-License-Identifier: GPL-3.0-or-later
"""What users and editors are told of the package is there, and of what is there."""
import ast
import inspect
import pathlib
import pydoc

import pytest

import vantrel
from vantrel import _core

PACKAGE = pathlib.Path(vantrel.__file__).parent


def public_members():
    for name in vantrel.__all__:
        member = getattr(vantrel, name)
        yield name, member
        if inspect.isclass(member):
            for own, value in vars(member).items():
                if not own.startswith("_") and not isinstance(value, str):
                    yield f"{name}.{own}", value


@pytest.mark.parametrize("name, member", public_members())
def test_whatever_is_public_has_its_documentation(name, member):
    assert len(inspect.getdoc(member) or "") > 10, name


def test_help_reads_as_a_manual():
    text = pydoc.render_doc(vantrel, renderer=pydoc.plaintext)
    for said in ("Gait trials from C3D files, as numpy arrays", "float32, (frames, 3), X, Y, Z",
                 "float32, (strides, 51, 3)", "in seconds of the trial", "shape (3, 4, 2)",
                 "errors      what to do about", "class Trial", "class OpenError", "table(report"):
        assert said in text
    assert "_core" not in pydoc.render_doc(vantrel.Trial, renderer=pydoc.plaintext)


def test_public_things_are_those_of_the_package():
    for name in vantrel.__all__:
        assert getattr(vantrel, name).__module__ == "vantrel"


def names_of(body):
    """what the statements of a stub declare, members of classes with their class"""
    for statement in body:
        if isinstance(statement, ast.ClassDef):
            yield statement.name
            yield from (f"{statement.name}.{name}" for name in names_of(statement.body))
        elif isinstance(statement, ast.FunctionDef):
            yield statement.name
        elif isinstance(statement, ast.AnnAssign):
            yield statement.target.id


def test_the_stub_declares_what_the_core_has():
    declared = set(names_of(ast.parse((PACKAGE / "_core.pyi").read_text()).body))
    there = {name for name in vars(_core) if not name.startswith("__")}
    there |= {f"Trial.{name}" for name in vars(_core.Trial)
              if not name.startswith("_") or name == "__init__"}
    assert declared == there
    assert (PACKAGE / "py.typed").exists()
