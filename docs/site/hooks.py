"""What mkdocs calls: the search index as a script, for pages that are opened as files."""

from __future__ import annotations

from pathlib import Path
from typing import Any


def on_post_build(config: dict[str, Any], **_: Any) -> None:
    search = Path(config["site_dir"]) / "search"
    index = (search / "search_index.json").read_text()
    (search / "search_index.js").write_text(f"haldgenSearchIndex({index});\n")
