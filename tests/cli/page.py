#!/usr/bin/python3
"""Opens the HTML page of a tool in a headless Chromium and uses it:
  page.py <tolva>
"""

import sys

from browser import try_page

ENTER = '\ue007'
DOWN = '\ue015'
ESCAPE = '\ue00c'

IS_IN_WINDOW = """(({top}) => top >= 0 && top < innerHeight)(one(arguments[0]).getBoundingClientRect())
  && one(arguments[0]).checkVisibility()"""


def use(browser):
    browser.expect('only the roots are unfolded',
                   "!one('.document[open]') && !one('.element:not(:first-of-type)[open]')")
    # A document, and an element in it, are unfolded and folded.
    browser.click('#policy > summary')
    browser.click('[id="policy/LocationArray"] > summary')
    browser.expect('an element unfolds', "one('[id=\"policy/LocationArray/Location\"]').checkVisibility()")
    # A child is a link to its element.
    browser.click('[id="policy/LocationArray/Location"] th > a')
    browser.expect('a link is followed', IS_IN_WINDOW, '[id="policy/Location"]')
    browser.expect('what a link leads to is unfolded', "one('[id=\"policy/Location\"]').open")
    browser.expect('the place is marked at the side', "one('nav [aria-current]').textContent === 'Location'")
    browser.click('[id="policy/Location"] > summary')
    browser.expect('an element folds', "!one('[id=\"policy/Location\"]').open")

    # By keyboard alone: search, choose, go there.
    browser.type('/mode')
    browser.expect('what is named so comes first', "one('#results a').textContent.startsWith('Mode')")
    browser.type(DOWN + ENTER)
    browser.expect('the results are gone', "one('#results').hidden")
    browser.expect('the second result is shown',
                   "location.hash.length > 1 && all('#results a')[1].hash === location.hash")
    browser.type('/password' + ENTER)
    browser.expect('an attribute is found by name', IS_IN_WINDOW, '[id="policy/UserInterface/AdminPasswordHash"]')
    browser.type('/unattended' + ENTER)
    browser.expect('an attribute is found by a value', IS_IN_WINDOW, '[id="policy/UserInterface/Mode"]')
    browser.type('/no such thing')
    browser.expect('nothing is found', "one('#results').textContent === 'Nothing found'")
    browser.type(ESCAPE)

    browser.click('#unfold')
    browser.expect('all unfolds', "!one('main details:is(.document, .element):not([open])')")
    browser.expect('links lead somewhere',
                   "all('a[href]').every((link) => link.getAttribute('href').startsWith('#') &&"
                   " document.getElementById(decodeURIComponent(link.hash.slice(1))))")
    ids = "all('[id]').map(({id}) => id)"
    browser.expect('anchors are unique', f"new Set({ids}).size === {ids}.length && {ids}.length > 500")
    browser.expect('nothing is loaded', "performance.getEntriesByType('resource').length === 0")
    browser.click('#unfold')
    browser.expect('all folds', "!one('.element[open]')")


if __name__ == '__main__':
    try_page([sys.argv[1], 'schema', 'html'], 0, use)
