"""The binary contract in the types of ctypes; docs/binary-contract.md is its description."""

from __future__ import annotations

import ctypes
from ctypes import POINTER, c_bool, c_char, c_char_p, c_double, c_int32, c_uint32, c_void_p

from ._platform import DESTRUCTORS

_CODE = ctypes.CFUNCTYPE(c_bool, c_void_p, POINTER(c_uint32))
_TEXT = ctypes.CFUNCTYPE(c_bool, c_void_p, POINTER(c_void_p), POINTER(c_int32))
_QUESTION = ctypes.CFUNCTYPE(c_bool, c_void_p)


class InkSlotOperations(ctypes.Structure):
    """The table of functions that a slot begins with the address of."""

    _fields_ = [
        ("destructors", c_void_p * DESTRUCTORS),
        ("GetColorCode", _CODE),
        ("GetInkTypeCode", _CODE),
        ("GetInkId", _TEXT),
        ("GetInkName", _TEXT),
        ("IsValid", _QUESTION),
    ]


class InkSlot(ctypes.Structure):
    """A slot, which stays the library's."""

    _fields_ = [("operations", POINTER(InkSlotOperations))]


INFO_FIELD_BYTES = 128
Info = c_char * (3 * INFO_FIELD_BYTES)
ModeConfig = c_int32 * 6

#: The parameters of each export. All of them return bool, one byte.
PARAMETERS = {
    "TavrinInitialize": [c_char_p],
    "TavrinFinalize": [],
    "TavrinGetLastError": [POINTER(c_uint32)],
    "TavrinGetAreaSize": [POINTER(c_uint32)] * 3,
    "TavrinGetAreaMarginSize": [POINTER(c_uint32)],
    "TavrinGetModeCount": [POINTER(c_uint32)],
    "TavrinGetModeConfig": [c_int32, POINTER(ModeConfig)],
    "TavrinGetTopSupportThickness": [POINTER(c_uint32)],
    "TavrinGetSideSupportThickness": [c_int32, POINTER(c_uint32)],
    "TavrinGetDetachLayerHeight": [POINTER(c_uint32)],
    "TavrinGetSmoothing": [POINTER(c_bool)],
    "TavrinGetFeedBiDirection": [POINTER(c_bool)],
    "TavrinGetWrapReduction": [POINTER(c_bool)],
    "TavrinGetWarpWarning": [c_int32, POINTER(c_bool)],
    "TavrinGetInfo": [POINTER(Info)],
    "TavrinGetHeadBandSize": [POINTER(c_double)],
    "TavrinGetDefaultPrintMode": [POINTER(c_uint32)],
    "TavrinGetChippingAllowance": [POINTER(c_uint32)],
    "TavrinGetSupportSize": [POINTER(c_uint32)],
    "TavrinGetAutoCleaning": [POINTER(c_bool)],
    "TavrinGetCheckNozzleWhilePrinting": [POINTER(c_bool)],
    "TavrinGetItemCountOfInkCategory": [POINTER(c_uint32)],
    "TavrinGetInkSlotNumConposeInkCategory": [
        c_int32,
        POINTER(POINTER(c_int32)),
        POINTER(c_int32),
    ],
    "TavrinGetItemCountOfInkSlot": [POINTER(c_uint32)],
    "TavrinGetInkSlot": [c_uint32, POINTER(POINTER(InkSlot))],
    "TavrinCreateModelingConditionsFile": [c_char_p],
}
