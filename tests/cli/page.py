#!/usr/bin/python3
"""Opens the HTML page of a tool in a headless Chromium and uses it:
  page.py <tolva>
"""

import sys

from browser import try_page

ENTER = '\ue007'
DOWN = '\ue015'
ESCAPE = '\ue00c'

IS_VISIBLE = '''
  const target = document.getElementById(arguments[0]);
  const box = target.getBoundingClientRect();
  return target.checkVisibility() && box.top >= 0 && box.top < innerHeight;'''


def use(browser):
    browser.expect('only the roots are unfolded',
                   "return [...document.querySelectorAll('.document')].every((one) => !one.open)"
                   " && !document.querySelector('.element:not(:first-of-type)[open]')")
    # A document, and an element in it, are unfolded and folded.
    browser.click('#policy > summary')
    browser.click('[id="policy/LocationArray"] > summary')
    browser.expect('an element unfolds',
                   "return document.getElementById('policy/LocationArray/Location').checkVisibility()")
    # A child is a link to its element.
    browser.click('[id="policy/LocationArray/Location"] th > a')
    browser.expect('a link is followed', IS_VISIBLE, 'policy/Location')
    browser.expect('what a link leads to is unfolded',
                   "return document.getElementById('policy/Location').open")
    browser.expect('the place is marked at the side',
                   "return document.querySelector('nav [aria-current]').textContent === 'Location'")
    browser.click('[id="policy/Location"] > summary')
    browser.expect('an element folds', "return !document.getElementById('policy/Location').open")

    # By keyboard alone: search, choose, go there.
    browser.type('/mode')
    browser.expect('what is named so comes first',
                   "return document.querySelector('#results a').textContent.startsWith('Mode')")
    browser.type(DOWN + ENTER)
    browser.expect('the results are gone', "return document.getElementById('results').hidden")
    browser.expect('the second result is shown', "return location.hash.length > 1 &&"
                   " document.querySelectorAll('#results a')[1].hash === location.hash")
    browser.type('/password' + ENTER)
    browser.expect('an attribute is found by name', IS_VISIBLE, 'policy/UserInterface/AdminPasswordHash')
    browser.type('/unattended' + ENTER)
    browser.expect('an attribute is found by a value', IS_VISIBLE, 'policy/UserInterface/Mode')
    browser.type('/no such thing')
    browser.expect('nothing is found',
                   "return document.getElementById('results').textContent === 'Nothing found'")
    browser.type(ESCAPE)

    browser.click('#unfold')
    browser.expect('all unfolds', "return !document.querySelector('main details:is(.document, .element):not([open])')")
    browser.expect('links lead somewhere',
                   "return [...document.querySelectorAll('a[href]')].every((link) =>"
                   " link.getAttribute('href').startsWith('#') &&"
                   " document.getElementById(decodeURIComponent(link.hash.slice(1))))")
    browser.expect('anchors are unique',
                   "const all = [...document.querySelectorAll('[id]')].map((one) => one.id);"
                   "return new Set(all).size === all.length && all.length > 500")
    browser.expect('nothing is loaded', "return performance.getEntriesByType('resource').length === 0")
    browser.click('#unfold')
    browser.expect('all folds', "return !document.querySelector('.element[open]')")


if __name__ == '__main__':
    try_page([sys.argv[1], 'schema', 'html'], 0, use)
