# SPDX-License-Identifier: MIT
"""Makes the site of the documentation: Site.py <directory>

Every page below Docs/, the README files and the other pages at the top become HTML, with one navigation. Source files
that a page links to are copied as text. The table of the hooks has a row for each combination that Tests/HookMatrix
plays. At the end every link is followed; one that leads nowhere is an error, and so is a page that the navigation
does not list.
"""

import html
import html.parser
import os
import pathlib
import re
import shutil
import sys
import urllib.parse

import markdown

SECTIONS = (
    ('Begin', ('README.md', 'Docs/GettingStarted.md', 'Docs/Guide.md', 'Docs/Recipes.md', 'Docs/Hazards.md',
               'Examples/CoffeeMachine/README.md')),
    ('Build with it', ('Docs/Companions.md', 'Docs/Widgets.md', 'Docs/DialogFiles.md', 'Docs/Adapters.md',
                       'Docs/FlowFiles.md', 'Docs/Flows.md', 'Docs/Simulator.md', 'Docs/Inspection.md')),
    ('Look up', ('Docs/HookContract.md', 'Docs/HookMatrix.md', 'Docs/Messages.md', 'Docs/FrameworkContract.md')),
    ('On a device', ('Docs/Porting.md', 'Docs/Footprint.md', 'Docs/Performance.md', 'Docs/Measurements.md')),
    ('The project', ('Docs/Adoption.md', 'Docs/Versions.md', 'CHANGELOG.md', 'Docs/Testing.md', 'Docs/Design.md',
                     'Docs/Safety.md', 'SECURITY.md', 'CONTRIBUTING.md')),
)
OUTCOMES = pathlib.Path('Tests/HookMatrix/Outcomes')
TABLE = 'hooks-table.html'


def slug(heading, separator):
    """The anchor of a heading, the same as on the pages of the repository."""
    return re.sub(r'[^\w\- ]', '', heading.lower()).replace(' ', separator)


def title_of(page):
    """The first heading of a page."""
    return re.search(r'^# (.*)$', pathlib.Path(page).read_text(encoding='utf-8'), re.MULTILINE).group(1)


def page_name(page):
    """The file of a page in the site."""
    if page == 'README.md':
        return 'index.html'
    return re.sub(r'\.md$', '', page.removeprefix('Docs/')).replace('/', '-') + '.html'


def rooms():
    """The README files of the folders, which the navigation does not list."""
    listed = {page for _, pages in SECTIONS for page in pages}
    return [str(path) for path in sorted(pathlib.Path('.').glob('*/README.md')) + sorted(pathlib.Path('.').glob('*/*/README.md'))
            if str(path) not in listed and not str(path).startswith(('build/', '.', 'Commands/Template'))]


def row(place, cells):
    """A row of the table of hooks; cells that are missing stay empty."""
    texts = [place, *cells, *[''] * (5 - len(cells))]
    return '<tr>' + ''.join(f'<td>{html.escape(text)}</td>' for text in texts) + '</tr>'


class Site:
    """Writes the pages and remembers what they link to."""

    def __init__(self, directory):
        self.directory = directory
        self.pages = {page: page_name(page) for _, pages in SECTIONS for page in pages if os.path.exists(page)}
        self.pages.update((page, page_name(page)) for page in rooms())
        self.copied = {}
        self.faults = []

    def navigation(self, current):
        """The navigation as it is on the page with that file name."""
        lines = []
        for section, pages in SECTIONS:
            entries = [(title_of(page), self.pages[page]) for page in pages if page in self.pages]
            if section == 'Begin':
                entries[0] = ('Overview', 'index.html')
            if section == 'Look up':
                entries.insert(0, ('Classes and headers', 'api/index.html'))
                entries.insert(3, ('All combinations of hooks', TABLE))
            lines.append(f'<h2>{html.escape(section)}</h2>\n<ul>')
            for title, name in entries:
                here = ' aria-current="page"' if name == current else ''
                lines.append(f'<li><a href="{name}"{here}>{html.escape(title)}</a></li>')
            lines.append('</ul>')
        return '\n'.join(lines)

    def write(self, name, title, body, kind='', script=''):
        """Writes one page."""
        text = f'''<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>{html.escape(title)} – Dialog manager</title>
<link rel="stylesheet" href="style.css">
</head>
<body class="{kind}">
<a class="skip" href="#content">To the content</a>
<div class="page">
<p class="to-pages"><a href="#pages">All pages</a></p>
<main id="content">
{body}
</main>
<nav id="pages" aria-label="Pages"><div>
{self.navigation(name)}
</div></nav>
</div>
{script}</body>
</html>
'''
        (self.directory / name).write_text(text, encoding='utf-8')

    def copy_of(self, path):
        """The page that shows a source file or lists a folder; makes it when it is the first link there."""
        name = 'file-' + str(path).replace('/', '-') + '.html'
        if name not in self.copied:
            self.copied[name] = path
            if path.is_dir():
                entries = sorted(str(entry) for entry in path.iterdir())
                text = '\n'.join(entries)
            else:
                text = path.read_text(encoding='utf-8')
            self.write(name, str(path), f'<h1>{html.escape(str(path))}</h1>\n<pre><code>{html.escape(text)}</code></pre>')
        return name

    def target(self, page, link):
        """What a link of a page becomes."""
        if re.match(r'\w+:', link) or link.startswith('#'):
            return link
        path, _, anchor = link.partition('#')
        inside = pathlib.Path(os.path.normpath(os.path.join(os.path.dirname(page), urllib.parse.unquote(path))))
        readme = inside / 'README.md'
        if str(inside) in self.pages:
            name = self.pages[str(inside)]
        elif inside.is_dir() and str(readme) in self.pages:
            name = self.pages[str(readme)]
        elif inside.suffix in ('.svg', '.png'):
            name = inside.name
            shutil.copyfile(inside, self.directory / name)
        elif inside.exists():
            name = self.copy_of(inside)
        else:
            self.faults.append(f'{page}: there is no {link}')
            return link
        return name + ('#' + anchor if anchor else '')

    def convert(self, page):
        """Makes one page from Markdown."""
        text = pathlib.Path(page).read_text(encoding='utf-8')
        # The library begins a list only after an empty line.
        text = re.sub(r'^((?!\s*(?:[-*|]|\d+\.) ).*\S.*)\n(?=- )', r'\1\n\n', text, flags=re.MULTILINE)
        body = markdown.markdown(text, extensions=['tables', 'fenced_code', 'sane_lists', 'toc', 'md_in_html'],
                                 extension_configs={'toc': {'slugify': slug}}, tab_length=2)
        body = re.sub(r'(href|src)="([^"]*)"', lambda match: f'{match[1]}="{self.target(page, html.unescape(match[2]))}"', body)
        body = body.replace('<table>', '<div class="table" tabindex="0"><table>').replace('</table>', '</table></div>')
        name = self.pages[page]
        title = title_of(page)
        self.write(name, title, body + f'<footer>Made from <code>{html.escape(page)}</code></footer>')

    def write_hooks_table(self):
        """Writes the table with every combination."""
        rows = []
        for path in sorted(OUTCOMES.glob('*.txt')):
            lines = path.read_text(encoding='utf-8').splitlines()
            usual, place = [''] * 5, ''
            for line in lines:
                cells = line.split(' | ')
                if not line:
                    place = ''
                elif not place:
                    place = line
                elif len(cells) == 2:
                    rows.append(row(place, cells))
                elif len(cells) == 5:
                    usual = cells if cells[0] == 'nothing' else usual
                    rows.append(row(place, [usual[number] if cell == '=' else cell for number, cell in enumerate(cells)]))
                else:
                    self.faults.append(f'{path}: what is "{line[:60]}"?')
        head = ''.join(f'<th scope="col">{name}</th>' for name in (
            'Hook and operation', 'Done inside', 'Result inside', 'Result of the operation', 'Hooks in order', 'State after it'))
        body = f'''<h1>All combinations of hooks</h1>
<p>Each row is one combination that a test plays on the library: the place where something is done, what is done there,
its result, the result of the operation around it, the hooks in order and what is different in the state.
<a href="HookMatrix.html">The matrix</a> shows the same at a glance and explains the situation and the signs;
<a href="HookContract.html">the rules</a> say what it comes to.</p>
<p class="filter"><label for="words">Only rows with these words, for example <code>OnDialogDeletion Back throw</code></label><br>
<input id="words" type="search" autocomplete="off"> <span id="count" role="status"></span></p>
<div class="table cells" tabindex="0"><table><thead><tr>{head}</tr></thead>
<tbody>
''' + '\n'.join(rows) + '\n</tbody></table></div>'
        self.write(TABLE, 'All combinations of hooks', body, 'wide', '<script src="filter.js"></script>\n')
        return len(rows)


class Links(html.parser.HTMLParser):
    """The links and anchors of one page."""

    def __init__(self):
        super().__init__()
        self.links, self.anchors = [], set()

    def handle_starttag(self, tag, attrs):
        for key, value in attrs:
            if key in ('href', 'src'):
                self.links.append(value)
            elif key in ('id', 'name'):
                self.anchors.add(value)


def read_links(path):
    parser = Links()
    parser.feed(path.read_text(encoding='utf-8'))
    return parser


def broken_links(directory):
    """Yields every link of the pages that leads nowhere or to another host."""
    found = {path.name: read_links(path) for path in directory.glob('*.html')}
    for name, parser in found.items():
        for link in parser.links:
            path, _, anchor = link.partition('#')
            target = path or name
            if re.match(r'\w+:', link):
                continue
            if not (directory / target).exists():
                yield f'{name}: {link} leads nowhere'
            elif anchor and target in found and urllib.parse.unquote(anchor) not in found[target].anchors:
                yield f'{name}: there is no heading for {link}'


def unlisted_pages():
    """Yields the pages below Docs/ that the navigation does not list."""
    listed = {page for _, pages in SECTIONS for page in pages}
    for path in sorted(pathlib.Path('Docs').glob('*.md')):
        if str(path) not in listed:
            yield f'{path}: Commands/Support/Site.py does not list it'


def main(arguments):
    """Makes the site; returns the exit status."""
    if len(arguments) != 1:
        print(__doc__)
        return 2
    directory = pathlib.Path(arguments[0])
    site = Site(directory)
    for name in ('style.css', 'filter.js'):
        shutil.copyfile(f'Docs/Site/{name}', directory / name)
    for page in site.pages:
        site.convert(page)
    rows = site.write_hooks_table()
    faults = site.faults + list(unlisted_pages()) + list(broken_links(directory))
    print('\n'.join(faults) or f'{len(site.pages)} pages and a table of {rows} rows, and all links lead somewhere')
    return 1 if faults else 0


if __name__ == '__main__':
    sys.exit(main(sys.argv[1:]))
