"""A headless Chromium, driven through chromedriver."""

import json
import pathlib
import re
import subprocess
import tempfile
import urllib.request


HELPERS = """
  const one = (selector) => document.querySelector(selector);
  const all = (selector) => [...document.querySelectorAll(selector)];
"""


class Browser:
    """Starts the browser; `with` ends it."""

    def __init__(self, width=1400, height=1000, dark=False):
        self._driver = subprocess.Popen(
            ['chromedriver', '--port=0'], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        for line in self._driver.stdout:
            port = re.search(r'on port (\d+)', line)
            if port and port[1] != '0':
                break
        self._url = f'http://127.0.0.1:{port[1]}'
        arguments = ['--headless=new', '--no-sandbox', '--disable-gpu', '--hide-scrollbars',
                     f'--window-size={width},{height}']
        if dark:
            arguments.append('--blink-settings=preferredColorScheme=0')
        options = {'goog:chromeOptions': {'args': arguments}, 'goog:loggingPrefs': {'browser': 'ALL'}}
        session = self._call('POST', '/session', {'capabilities': {'alwaysMatch': options}})
        self._url += '/session/' + session['sessionId']

    def __enter__(self):
        return self

    def __exit__(self, *_):
        try:
            self._call('DELETE', '')
        finally:
            self._driver.terminate()
            self._driver.wait()

    def _call(self, method, path, body=None):
        data = None if method != 'POST' else json.dumps(body or {}).encode()
        request = urllib.request.Request(self._url + path, data, {'Content-Type': 'application/json'},
                                         method=method)
        with urllib.request.urlopen(request, timeout=60) as answer:
            return json.load(answer)['value']

    def open(self, url):
        self._call('POST', '/url', {'url': url})

    def run(self, value, *arguments):
        """The value of an expression. In it, one(selector) is the first element that matches, and
        all(selector) are all of them."""
        script = HELPERS + 'return ' + value
        return self._call('POST', '/execute/sync', {'script': script, 'args': arguments})

    def type(self, keys):
        """Sends keys to whatever has the focus."""
        presses = [{'type': kind, 'value': key} for key in keys for kind in ('keyDown', 'keyUp')]
        self._call('POST', '/actions', {'actions': [{'type': 'key', 'id': 'keyboard', 'actions': presses}]})

    def click(self, selector):
        """Clicks the first element that the selector finds, as a person would."""
        element = self._call('POST', '/element', {'using': 'css selector', 'value': selector})
        self._call('POST', f'/element/{next(iter(element.values()))}/click')

    def problems(self):
        """What the browser has complained about since the last call."""
        return [entry['message'] for entry in self._call('POST', '/se/log', {'type': 'browser'})]

    def expect(self, what, condition, *arguments):
        assert self.run(condition, *arguments) is True, what


def try_page(command, status, use):
    """Opens the page that a command writes in wide and narrow windows, light and
    dark. `use` gets the first of them."""
    with tempfile.TemporaryDirectory() as temporary:
        file = pathlib.Path(temporary) / 'page.html'
        made = subprocess.run([*command, '-o', file], check=False)
        assert made.returncode == status, made.returncode
        for name, width, dark in (('wide', 1400, False), ('narrow', 500, False), ('dark', 1000, True)):
            with Browser(width, 1000, dark) as browser:
                browser.open(file.as_uri())
                if name == 'wide':
                    use(browser)
                browser.run("one('#unfold')?.click()")
                browser.expect('it is no wider than the window', 'one(":root").scrollWidth <= innerWidth')
                ground = 'getComputedStyle(document.body).backgroundColor'
                browser.expect('it follows the system\'s colours',
                               f'({ground}.match(/\\d+/)[0] < 128) === arguments[0]', dark)
                problems = browser.problems()
                assert not problems, problems
