"""The user's guide is whole, the same in both languages, and calls things what the windows call them."""

from __future__ import annotations

import os
import unittest
from dataclasses import dataclass, field
from html.parser import HTMLParser
from pathlib import Path

SOURCES = Path(os.environ["SOURCES"])
GUIDE = SOURCES / "docs/guide"
LANGUAGES = {"en": "english", "it": "italiano"}
WITHOUT_END = {"meta", "link", "img"}


@dataclass
class Page(HTMLParser):
    """What stands in a page: where it leads to, its pictures, and the captions that it quotes."""

    file: Path
    links: list[str] = field(default_factory=list)
    pictures: dict[str, str] = field(default_factory=dict)
    captions: list[str] = field(default_factory=list)
    headings: list[str] = field(default_factory=list)

    def __post_init__(self) -> None:
        super().__init__()
        self._open: list[str] = []
        self.feed(self.file.read_text(encoding="utf-8"))
        self.close()
        assert not self._open, f"{self.file}: {self._open}"

    def handle_starttag(self, tag: str, attrs: list[tuple[str, str | None]]) -> None:
        attributes = {name: value or "" for name, value in attrs}
        if "href" in attributes:
            self.links.append(attributes["href"])
        if tag == "img":
            self.pictures[attributes["src"]] = attributes["alt"]
        if tag == "b":
            self.captions.append("")
        if tag in ("h1", "h2"):
            self.headings.append(tag)
        if tag not in WITHOUT_END:
            self._open.append(tag)

    def handle_endtag(self, tag: str) -> None:
        opened = self._open.pop()
        assert opened == tag, f"{self.file}: {opened} ends as {tag}"

    def handle_data(self, data: str) -> None:
        if self._open and self._open[-1] == "b":
            self.captions[-1] += " ".join(data.split())

    def target(self, link: str) -> Path:
        return self.file.parent / link


def pages(language: str) -> dict[str, Page]:
    return {file.name: Page(file) for file in sorted((GUIDE / language).glob("*.html"))}


def interface_texts(language: str) -> set[str]:
    content = (SOURCES / f"data/languages/{LANGUAGES[language]}.lng").read_bytes().decode("cp1252")
    return {line.replace("&", "") for line in content.split("\r\n")}


class GuideTest(unittest.TestCase):
    def test_every_link_leads_to_a_page(self) -> None:
        for language in LANGUAGES:
            for page in pages(language).values():
                for link in page.links:
                    self.assertTrue(page.target(link).is_file(), f"{page.file}: {link}")

    def test_every_page_is_in_the_index(self) -> None:
        for language in LANGUAGES:
            listed = set(pages(language)["index.html"].links)
            self.assertLessEqual(set(pages(language)) - {"index.html"}, listed)

    def test_every_picture_is_there_and_described(self) -> None:
        for language in LANGUAGES:
            for page in pages(language).values():
                for picture, description in page.pictures.items():
                    self.assertTrue(page.target(picture).is_file(), f"{page.file}: {picture}")
                    self.assertNotEqual(description, "", f"{page.file}: {picture}")

    def test_no_picture_is_left_over(self) -> None:
        shown = {
            page.target(picture).resolve()
            for language in LANGUAGES
            for page in pages(language).values()
            for picture in page.pictures
        }
        self.assertEqual(shown, {file.resolve() for file in GUIDE.rglob("*.png")})

    def test_both_languages_have_the_same_pages(self) -> None:
        english, italian = pages("en"), pages("it")
        self.assertEqual(set(english), set(italian))
        for name, page in english.items():
            self.assertEqual(page.headings, italian[name].headings, name)
            own = [picture.replace("/en/", "/it/") for picture in page.pictures]
            self.assertEqual(own, list(italian[name].pictures), name)

    def test_captions_are_those_of_the_windows(self) -> None:
        for language in LANGUAGES:
            texts = interface_texts(language)
            for page in pages(language).values():
                for caption in page.captions:
                    self.assertIn(caption, texts, page.file)


if __name__ == "__main__":
    unittest.main()
