"""What a conversion could not take over, in words for users."""

from __future__ import annotations

from dataclasses import dataclass
from typing import Any, Optional


@dataclass(frozen=True)
class Loss:
    """The layer is a path of groups and name, or empty for the document."""

    layer: str
    what: str
    consequence: str

    def text(self) -> str:
        return f"{self.layer}: {self.what}: {self.consequence}".lstrip(": ")


class Losses:
    """Collects each loss once, in order."""

    def __init__(self) -> None:
        self._losses: dict[Loss, None] = {}
        self.layer = ""

    def add(self, what: str, consequence: str, layer: Optional[str] = None) -> None:
        """Adds a loss of the current layer, unless another is named."""
        self._losses[Loss(self.layer if layer is None else layer, what, consequence)] = None

    def add_read_losses(self, losses: list[dict[str, Any]]) -> None:
        """Adds those that mxdinfo reports."""
        for loss in losses:
            places = [place for place in (loss.get("map"), loss.get("layer")) if place]
            self.add(loss["what"], loss["consequence"], " / ".join(places))

    def all(self) -> list[Loss]:
        return list(self._losses)
