// SPDX-License-Identifier: MIT
// Shows the rows that have all the words of the filter. Without this script all rows are there.
'use strict';

(function () {
    const input = document.getElementById('words');
    const count = document.getElementById('count');
    const rows = Array.from(document.querySelectorAll('.cells tbody tr'));
    const texts = rows.map((row) => row.textContent.toLowerCase());

    function show() {
        const words = input.value.toLowerCase().split(/\s+/).filter((word) => word !== '');
        let shown = 0;
        rows.forEach((row, index) => {
            const fits = words.every((word) => texts[index].includes(word));
            row.hidden = !fits;
            shown += fits ? 1 : 0;
        });
        count.textContent = shown + ' of ' + rows.length;
    }

    document.documentElement.classList.add('with-script');
    input.addEventListener('input', show);
    show();
}());
