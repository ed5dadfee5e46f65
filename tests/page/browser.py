"""Chromium without a screen, for the tests of pages."""
import contextlib
import json
import tempfile
from pathlib import Path

from selenium import webdriver
from selenium.webdriver.chrome.service import Service


@contextlib.contextmanager
def chromium(*arguments, downloads=None):
    """A browser with a profile of its own, which keeps a log of its console and of every request."""
    with tempfile.TemporaryDirectory() as profile:
        options = webdriver.ChromeOptions()
        options.binary_location = '/usr/bin/chromium'
        for argument in ('headless=new', 'no-sandbox', 'disable-gpu', 'disable-background-networking', f'user-data-dir={profile}', *arguments):
            options.add_argument(f'--{argument}')
        options.add_experimental_option('prefs', {'download.default_directory': str(downloads or profile), 'profile.default_content_setting_values.automatic_downloads': 1})
        options.set_capability('goog:loggingPrefs', {'browser': 'ALL', 'performance': 'ALL'})
        driver = webdriver.Chrome(service=Service('/usr/bin/chromedriver'), options=options)
        try:
            driver.set_script_timeout(120)
            yield driver
        finally:
            driver.quit()


def console(driver):
    """What the page and the browser had to say since the last call."""
    return [entry['message'] for entry in driver.get_log('browser')]


def requests(driver):
    """The addresses that were asked for since the last call, without those that are inside the page."""
    events = [json.loads(entry['message'])['message'] for entry in driver.get_log('performance')]
    addresses = [event['params']['request']['url'] for event in events if event['method'] == 'Network.requestWillBeSent']
    return [address for address in addresses if not address.startswith(('blob:', 'data:', 'chrome:'))]
