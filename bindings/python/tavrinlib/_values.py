"""The answers: copies that nothing in the library keeps alive or takes away.

Lengths are whole micrometres (µm). A negative one is what the definition says; from 2**31 µm on,
more than two kilometres, lengths wrap.
"""

from __future__ import annotations

from dataclasses import dataclass
from typing import Optional


@dataclass(frozen=True)
class PrinterIdentity:
    """Who the printer is."""

    model_name: str
    version: str  #: of the definition
    network_address: str  #: empty where the definition has none


@dataclass(frozen=True)
class BuildVolume:
    """The space that models are built in, in µm."""

    width: int
    depth: int
    height: int


@dataclass(frozen=True)
class PrintMode:
    """A way to print, in the order of the definition."""

    number: int  #: names the mode; it is not its position
    slice_height: int  #: µm
    first_value: int  #: of the mode's pair
    second_value: int  #: of the mode's pair
    limited: bool  #: whether the host warns of warping before the mode runs
    slice_count: Optional[int]  #: slices in the build height; None where there is no such number
    limited_continuous: Optional[int]  #: how long it may run on as a limited mode; None: no limit


@dataclass(frozen=True)
class Support:
    """The support that carries a model; what stands beside it is Session.side_support()."""

    top_thickness: int  #: under top surfaces, µm
    detach_layer_height: int  #: between model and build plate, µm
    size_code: int  #: from -2, the smallest, to 6


@dataclass(frozen=True)
class Switches:
    """What is on and what is off."""

    smoothing: bool  #: edges are smoothed
    feed_bidirection: bool  #: it prints in both directions of the feed
    wrap_reduction: bool
    auto_cleaning: bool  #: the heads are cleaned by themselves
    check_nozzle_while_printing: bool


@dataclass(frozen=True)
class Slot:
    """An ink position of the printer. One that is not valid has the codes 0 and no name."""

    number: int  #: from 1
    color_code: int
    ink_type_code: int
    ink_id: str  #: the last three digits of the ink type's code and of the colour's
    ink_name: Optional[str]
    valid: bool  #: whether the definition describes colour and ink type


@dataclass(frozen=True)
class Category:
    """Ink slots that count as one ink. The last two categories are all model ink and all ink."""

    index: int  #: from 0
    slot_numbers: tuple[int, ...]  #: may be empty
