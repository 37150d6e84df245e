# SPDX-License-Identifier: MIT
"""Writes what a release consists of: Release.py <sources> <folder> <time> [<module of pkg-config>=<version> ...]

On standard input the names of the files that belong to it, each followed by a zero byte. The folder gets an archive, a
list of what is in it (SPDX 2.3, JSON) and their checksums. Nothing in them depends on when, where or by whom they are
written: <time>, in seconds since 1970, is that of the last change.
"""

import gzip
import hashlib
import io
import json
import re
import sys
import tarfile
from datetime import datetime, timezone
from pathlib import Path

LICENCES = {'expat': 'MIT', 'ncursesw': 'X11-distribute-modifications-variant'}


def write_archive(root, names, time, stem):
    """Returns the bytes of the archive."""
    content = io.BytesIO()
    with tarfile.open(fileobj=content, mode='w', format=tarfile.PAX_FORMAT) as archive:
        for name in names:
            data = (root / name).read_bytes()
            entry = tarfile.TarInfo(f'{stem}/{name}')
            entry.size, entry.mtime = len(data), time
            entry.mode = 0o755 if data.startswith(b'#!') else 0o644
            archive.addfile(entry, io.BytesIO(data))
    packed = io.BytesIO()
    with gzip.GzipFile(fileobj=packed, mode='wb', mtime=time, filename='') as stream:
        stream.write(content.getvalue())
    return packed.getvalue()


def checksums(data):
    return [{'algorithm': name, 'checksumValue': hashlib.new(name.lower(), data).hexdigest()}
            for name in ('SHA1', 'SHA256')]


def describe_file(root, name):
    data = (root / name).read_bytes()
    return {'SPDXID': 'SPDXRef-File-' + hashlib.sha1(name.encode()).hexdigest(), 'fileName': f'./{name}',
            'checksums': checksums(data), 'licenseConcluded': 'MIT', 'licenseInfoInFiles': ['MIT'],
            'copyrightText': 'NOASSERTION'}


def describe(root, names, time, stem, version, archive, needed):
    """Returns the list of what the archive has and needs."""
    copyright_line = re.search('Copyright.*', (root / 'LICENSE').read_text(encoding='utf-8'))[0]
    files = [describe_file(root, name) for name in names]
    sums = ''.join(sorted(file['checksums'][0]['checksumValue'] for file in files))
    package = {'SPDXID': 'SPDXRef-Package', 'name': 'dialogmanager', 'versionInfo': version,
               'packageFileName': f'{stem}.tar.gz', 'downloadLocation': 'NOASSERTION', 'filesAnalyzed': True,
               'packageVerificationCode': {'packageVerificationCodeValue': hashlib.sha1(sums.encode()).hexdigest()},
               'checksums': checksums(archive), 'licenseConcluded': 'MIT', 'licenseDeclared': 'MIT',
               'licenseInfoFromFiles': ['MIT'], 'copyrightText': copyright_line}
    others = [{'SPDXID': f'SPDXRef-Needed-{name}', 'name': name, 'versionInfo': found,
               'downloadLocation': 'NOASSERTION', 'filesAnalyzed': False, 'licenseConcluded': 'NOASSERTION',
               'licenseDeclared': LICENCES[name], 'copyrightText': 'NOASSERTION'} for name, found in needed]
    relations = [('SPDXRef-DOCUMENT', 'DESCRIBES', 'SPDXRef-Package')]
    relations += [('SPDXRef-Package', 'DEPENDS_ON', other['SPDXID']) for other in others]
    relations += [('SPDXRef-Package', 'CONTAINS', file['SPDXID']) for file in files]
    created = datetime.fromtimestamp(time, timezone.utc).strftime('%Y-%m-%dT%H:%M:%SZ')
    digest = hashlib.sha256(archive).hexdigest()
    return {'spdxVersion': 'SPDX-2.3', 'dataLicense': 'CC0-1.0', 'SPDXID': 'SPDXRef-DOCUMENT', 'name': stem,
            'documentNamespace': f'https://example.com/dialogmanager/spdx/{stem}-{digest}',
            'creationInfo': {'created': created, 'creators': ['Tool: dialogmanager-release']},
            'packages': [package, *others], 'files': files,
            'relationships': [{'spdxElementId': one, 'relationshipType': kind, 'relatedSpdxElement': other}
                              for one, kind, other in relations]}


def validate(document, archive):
    """Raises an error unless the document has what SPDX 2.3 demands and agrees with the archive."""
    for field in ('spdxVersion', 'dataLicense', 'SPDXID', 'name', 'documentNamespace', 'creationInfo'):
        assert document[field], field
    assert re.fullmatch(r'\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ', document['creationInfo']['created'])
    elements = [document, *document['packages'], *document['files']]
    identifiers = [element['SPDXID'] for element in elements]
    assert len(set(identifiers)) == len(identifiers), 'identifiers are unique'
    assert all(re.fullmatch(r'SPDXRef-[A-Za-z0-9.-]+', identifier) for identifier in identifiers)
    for relation in document['relationships']:
        assert relation['spdxElementId'] in identifiers and relation['relatedSpdxElement'] in identifiers
    for package in document['packages']:
        for field in ('name', 'downloadLocation', 'licenseConcluded', 'licenseDeclared', 'copyrightText'):
            assert package[field], field
    with tarfile.open(fileobj=io.BytesIO(archive)) as opened:
        found = {'./' + entry.name.split('/', 1)[1]: checksums(opened.extractfile(entry).read()) for entry in opened}
    assert found == {file['fileName']: file['checksums'] for file in document['files']}


def main(sources, folder, time, *needed):
    root, folder = Path(sources), Path(folder)
    names = sorted(filter(None, sys.stdin.buffer.read().decode().split('\0')))
    version = re.search(r'project\(DialogManager VERSION ([0-9.]+)', (root / 'CMakeLists.txt').read_text())[1]
    newest = re.search(r'^## (\S+)', (root / 'CHANGELOG.md').read_text(encoding='utf-8'), re.MULTILINE)[1]
    if newest != version:
        sys.exit(f'CHANGELOG.md begins with {newest} and project() says {version}')
    stem = f'dialogmanager-{version}'
    archive = write_archive(root, names, int(time), stem)
    document = describe(root, names, int(time), stem, version, archive, [pair.split('=') for pair in needed])
    validate(document, archive)
    folder.mkdir(parents=True, exist_ok=True)
    written = {f'{stem}.tar.gz': archive, f'{stem}.spdx.json': (json.dumps(document, indent=1) + '\n').encode()}
    for name, data in written.items():
        (folder / name).write_bytes(data)
    sums = ''.join(f'{hashlib.sha256(data).hexdigest()}  {name}\n' for name, data in written.items())
    (folder / 'SHA256SUMS').write_text(sums)


if __name__ == '__main__':
    main(*sys.argv[1:])
