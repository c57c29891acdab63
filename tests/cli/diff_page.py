#!/usr/bin/python3
"""Opens the page that `tolva diff` makes in a headless Chromium and uses it:
  diff_page.py <tolva> <example policy>
"""

import pathlib
import sys
import tempfile

from browser import try_page

ESCAPE = '\ue00c'

SHOWN = "all('tr[data-kind]').filter((row) => row.checkVisibility())"


def edited(policy):
    for old, new in (
            ('Desc="Wired', 'Desc="Wireless'),
            ('CloseActionOnAnalysisFailed="1"', 'CloseActionOnAnalysisFailed="0"'),
            ('<DeviceRule Action="BLOCK" VendorID="090C"/>', ''),
            ('<Printer Name="Kasa', '<Printer Name="&lt;b&gt;&#x202E;"/><Printer Name="Kasa'),
            ('AdminPasswordHash="', 'AdminPasswordHash="SECRET'),
    ):
        assert old in policy
        policy = policy.replace(old, new, 1)
    start = policy.index('<Location Name="Elsewhere"')
    end = policy.index('</Location>', start) + len('</Location>')
    moved, policy = policy[start:end], policy[:start] + policy[end:]
    return policy.replace('<LocationArray>', '<LocationArray>' + moved, 1)


def use(browser):
    shown = browser.run(f"{SHOWN}.map((row) => row.dataset.kind).sort().join()")
    assert shown == 'added,changed,changed,changed,moved,removed', shown
    browser.expect('the counts are at the top', "all('.kind').map(({textContent}) => textContent).join() ==="
                                                " '~3 changed,+1 added,−1 removed,⇅1 moved'")
    browser.expect('what differs within a value is marked',
                   "one('del').textContent === 'Wired' && one('ins').textContent === 'Wireless'")
    browser.expect('text is no markup, nor turned around',
                   "one('.added b').textContent === '<b>\\\\xE2\\\\x80\\\\xAE'")
    browser.expect('secrets are not there', "!one(':root').outerHTML.includes('SECRET')")
    browser.expect('what is the same is folded', "!one('.same[open]')")
    browser.click('.card .same > summary')
    browser.expect('it unfolds', "one('.card .same .content').checkVisibility()")

    browser.click('.kind.changed')
    browser.expect('a kind is hidden', f"{SHOWN}.length === 3")
    browser.click('.kind.changed')
    browser.type('/removablemedia')
    browser.expect('a path is found', f"{SHOWN}.map((row) => row.dataset.kind).join() === 'removed'")
    browser.expect('sections without differences are gone',
                   "all('section').filter((section) => section.checkVisibility()).length === 1")
    browser.expect('it is told', "one('#status').textContent.startsWith('1 of 6')")
    browser.type('zzz')
    browser.expect('nothing is found', "one('#nothing').checkVisibility()")
    browser.type(ESCAPE)
    browser.expect('the filter is gone', f"{SHOWN}.length === 6")

    browser.type('nn')
    browser.expect('keys go to the next difference', f"document.activeElement === {SHOWN}[1]")
    browser.type('pp')
    browser.expect('and around', f"document.activeElement === {SHOWN}[5]")
    browser.click('#next')
    browser.expect('so does a button', f"document.activeElement === {SHOWN}[0]")
    browser.expect('nothing is loaded', "performance.getEntriesByType('resource').length === 0")


def main():
    tolva, example = sys.argv[1:]
    with tempfile.TemporaryDirectory() as temporary:
        new = pathlib.Path(temporary) / 'new.xml'
        new.write_text(edited(pathlib.Path(example).read_text(encoding='utf-8')), encoding='utf-8')
        try_page([tolva, 'diff', '--format', 'html', example, new], 1, use)


if __name__ == '__main__':
    main()
