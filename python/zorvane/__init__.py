"""Plates, their geometry in millimetres, and pictures of them."""

from ._zorvane import (
    Calibration,
    Error,
    Finding,
    Library,
    Plate,
    SubWell,
    __version__,
)

__all__ = ["Calibration", "Error", "Finding", "Library", "Plate", "SubWell", "__version__"]
