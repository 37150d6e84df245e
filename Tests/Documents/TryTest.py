# SPDX-License-Identifier: MIT
"""Pages with a mistake must be refused, with the place and what to do; a page without one must pass."""

import os
import subprocess
import tempfile
import unittest

from Page import Page, Trouble
from Try import Try, is_meant

GOOD = '''# Tea

Make a folder:

```sh
mkdir pot
cd pot
```

The file `tea.txt`:

```ini
leaves=1
water=hot
```

```sh
cat tea.txt; echo "poured at $PWD" >&2
```

```text
leaves=1
water=hot
poured at ...pot
```

Stronger, in `tea.txt`:

```diff
-leaves=1
+leaves=3
 water=hot
```

```sh
head -n 1 tea.txt
```

```text
leaves=3
```
'''


class TryTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = folder.name
        subprocess.run(['git', 'init', '--quiet', self.root], check=True)

    def follow(self, text, section='Tea'):
        with open(os.path.join(self.root, 'Tea.md'), 'w', encoding='utf-8') as file:
            file.write(text)
        attempt = Try(self.root)
        try:
            attempt.follow(Page(self.root, 'Tea.md').blocks_of(section))
        finally:
            attempt.clean_up()

    def assert_refused(self, message, text, section='Tea'):
        with self.assertRaisesRegex(Trouble, message):
            self.follow(text, section)

    def test_page_without_a_mistake_goes_through(self):
        self.follow(GOOD)

    def test_other_output_is_refused(self):
        self.assert_refused(r'(?s)-water=cold\n\+water=hot.*Tea\.md:21: the commands of Tea\.md:17 print something else',
                            GOOD.replace('water=hot\npoured', 'water=cold\npoured'))

    def test_missing_output_is_refused(self):
        self.assert_refused(r'Tea\.md:21: .* print something else', GOOD.replace('poured at ...pot\n', ''))

    def test_output_without_a_command_is_refused(self):
        self.assert_refused(r'Tea\.md:3: no command of this section prints this', '# Tea\n\n```text\nhot\n```\n')

    def test_failing_command_is_refused(self):
        self.assert_refused(r'(?s)Tea\.md:5: these commands end with status 1',
                            GOOD.replace('cd pot\n', 'cd pot\nfalse\ntrue\n'))

    def test_warning_is_refused(self):
        self.assert_refused(r"(?s)1:1: warning: weak.*Tea\.md:5: these commands show the reader the warning above",
                            GOOD.replace('cd pot\n', 'cd pot\necho "1:1: warning: weak"\n'))

    def test_file_without_a_name_is_refused(self):
        self.assert_refused(r'Tea\.md:12: which file is this\?', GOOD.replace('The file `tea.txt`:', 'A file:'))

    def test_change_that_does_not_fit_is_refused(self):
        self.assert_refused(r'(?s)Tea\.md:29: tea\.txt has these lines 0 times instead of once:\nleaves=2',
                            GOOD.replace('-leaves=1', '-leaves=2'))

    def test_change_of_lines_that_stand_there_twice_is_refused(self):
        self.assert_refused(r'(?s)Tea\.md:10: tea\.txt has these lines 2 times instead of once:\nwater=hot',
                            '# Tea\n\nThe file `tea.txt`:\n\n```ini\nwater=hot\nwater=hot\n```\nIn `tea.txt`:\n'
                            '```diff\n-water=hot\n```\n')

    def test_change_of_a_missing_file_is_refused(self):
        self.assert_refused(r'Tea\.md:29: there is no file coffee\.txt', GOOD.replace('in `tea.txt`', 'in `coffee.txt`'))

    def test_line_of_a_change_without_a_sign_is_refused(self):
        self.assert_refused(r'Tea\.md:29: each line begins with', GOOD.replace('-leaves=1', 'leaves=1'))

    def test_block_without_an_end_is_refused(self):
        self.assert_refused(r'Tea\.md:39: this block has no end', GOOD[:-4])

    def test_unknown_section_is_refused(self):
        self.assert_refused(r'Tea\.md: there is no section "Coffee"; the sections are Tea', GOOD, 'Coffee')

    def test_clone_of_the_address_is_the_checkout(self):
        with open(os.path.join(self.root, 'not committed'), 'w', encoding='utf-8') as file:
            file.write('fresh\n')
        self.follow('# Tea\n\n```sh\ngit clone -q https://example.com/dialogmanager.git\ncd dialogmanager\n'
                    'cat "not committed"\n```\n\n```text\nfresh\n```\n')

    def test_dots_stand_for_anything_inside_a_line(self):
        self.assertTrue(is_meant('a (...)', 'a (b.cpp:12)'))
        self.assertFalse(is_meant('a (...)', 'b (b.cpp:12)'))
        self.assertFalse(is_meant('a.c', 'abc'))


if __name__ == '__main__':
    unittest.main()
