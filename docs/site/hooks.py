"""What mkdocs calls when the site is built."""

from __future__ import annotations

from pathlib import Path
from typing import Any


def on_post_build(config: dict[str, Any], **_: Any) -> None:
    site = Path(config["site_dir"])
    # For pages that are opened as files, see offline_search.js.
    index = (site / "search/search_index.json").read_text()
    (site / "search/search_index.js").write_text(f"haldgenSearchIndex({index});\n")
    # A list of addresses that there are not, with the date of the build.
    for sitemap in site.glob("sitemap.xml*"):
        sitemap.unlink()
