#!/usr/bin/python3
"""Opens the HTML page of a tool in a headless Chromium and uses it:
  page.py <tolva> [folder for screenshots]
"""

import pathlib
import subprocess
import sys
import tempfile

from browser import Browser

ENTER = '\ue007'
DOWN = '\ue015'
ESCAPE = '\ue00c'

IS_VISIBLE = '''
  const target = document.getElementById(arguments[0]);
  const box = target.getBoundingClientRect();
  return target.checkVisibility() && box.top >= 0 && box.top < innerHeight;'''


class Page:
    def __init__(self, browser, url):
        self._browser = browser
        browser.open(url)

    def expect(self, what, script, *arguments):
        if self._browser.run(script, *arguments) is not True:
            raise AssertionError(what)

    def use(self):
        browser = self._browser
        self.expect('only the roots are unfolded',
                    "return [...document.querySelectorAll('.document')].every((one) => !one.open)"
                    " && !document.querySelector('.element:not(:first-of-type)[open]')")
        # A document, and an element in it, are unfolded and folded.
        browser.click('#policy > summary')
        browser.click('[id="policy/LocationArray"] > summary')
        self.expect('an element unfolds',
                    "return document.getElementById('policy/LocationArray/Location').checkVisibility()")
        # A child is a link to its element.
        browser.click('[id="policy/LocationArray/Location"] th > a')
        self.expect('a link is followed', IS_VISIBLE, 'policy/Location')
        self.expect('what a link leads to is unfolded',
                    "return document.getElementById('policy/Location').open")
        self.expect('the place is marked at the side',
                    "return document.querySelector('nav [aria-current]').textContent === 'Location'")
        browser.click('[id="policy/Location"] > summary')
        self.expect('an element folds', "return !document.getElementById('policy/Location').open")

        # By keyboard alone: search, choose, go there.
        browser.type('/mode')
        self.expect('what is named so comes first',
                    "return document.querySelector('#results a').textContent.startsWith('Mode')")
        browser.type(DOWN + ENTER)
        self.expect('the results are gone', "return document.getElementById('results').hidden")
        self.expect('the second result is shown', "return location.hash.length > 1 &&"
                    " document.querySelectorAll('#results a')[1].hash === location.hash")
        browser.type('/password' + ENTER)
        self.expect('an attribute is found by name', IS_VISIBLE, 'policy/UserInterface/AdminPasswordHash')
        browser.type('/unattended' + ENTER)
        self.expect('an attribute is found by a value', IS_VISIBLE, 'policy/UserInterface/Mode')
        browser.type('/no such thing')
        self.expect('nothing is found',
                    "return document.getElementById('results').textContent === 'Nothing found'")
        browser.type(ESCAPE)

        browser.click('#unfold')
        self.expect('all unfolds', "return !document.querySelector('main details:is(.document, .element):not([open])')")
        self.expect('links lead somewhere',
                    "return [...document.querySelectorAll('a[href]')].every((link) =>"
                    " link.getAttribute('href').startsWith('#') &&"
                    " document.getElementById(decodeURIComponent(link.hash.slice(1))))")
        self.expect('anchors are unique',
                    "const all = [...document.querySelectorAll('[id]')].map((one) => one.id);"
                    "return new Set(all).size === all.length && all.length > 500")
        self.expect('nothing is loaded', "return performance.getEntriesByType('resource').length === 0")
        browser.click('#unfold')
        self.expect('all folds', "return !document.querySelector('.element[open]')")

    def fits(self):
        self._browser.click('#unfold')
        self.expect('it is no wider than the window',
                    'return document.documentElement.scrollWidth <= innerWidth')


def main():
    tolva, *folder = sys.argv[1:]
    with tempfile.TemporaryDirectory() as temporary:
        file = pathlib.Path(temporary) / 'page.html'
        subprocess.run([tolva, 'schema', 'html', '-o', file], check=True)
        for name, width, dark in (('wide', 1400, False), ('narrow', 500, False), ('dark', 1000, True)):
            with Browser(width, 1000, dark) as browser:
                page = Page(browser, file.as_uri())
                if name == 'wide':
                    page.use()
                page.fits()
                page.expect('it follows the system\'s colours',
                            "const ground = getComputedStyle(document.body).backgroundColor;"
                            "return (ground.match(/\\d+/)[0] < 128) === arguments[0]", dark)
                problems = browser.problems()
                if problems:
                    raise AssertionError(problems)
                if folder:
                    browser.screenshot(pathlib.Path(folder[0]) / f'{name}.png')
    return 0


if __name__ == '__main__':
    sys.exit(main())
