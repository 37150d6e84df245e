// SPDX-License-Identifier: MIT
/** The session as a line: what was shown when, and where one is. */

import { seconds } from './panels.js';
import { advanceOf } from './session.js';

/** The colours of a canvas, where those of the style sheet do not reach. */
const MARKS = {
    light: { input: '#5b554d', popup: '#b06a00', error: '#c42318', lightness: 80 },
    dark: { input: '#aca79f', popup: '#f2bd63', error: '#ff8a7d', lightness: 30 },
};

const HUES = [205, 28, 150, 265, 340, 95, 180, 310, 50, 235];

export class TimeLine {
    /**
     * @param {HTMLElement} root
     * @param {(position: number) => void} onGo called with the position that somebody wants to see
     */
    constructor(root, onGo) {
        this.slider = root.querySelector('input[type="range"]');
        this.canvas = root.querySelector('canvas');
        this.label = root.querySelector('.where');
        this.steps = [];
        this.hues = new Map();
        this.slider.addEventListener('input', () => onGo(Number(this.slider.value)));
        new ResizeObserver(() => this.draw()).observe(this.canvas);
        matchMedia('(prefers-color-scheme: dark)').addEventListener('change', () => this.draw());
    }

    update(player) {
        this.steps = player.steps;
        this.position = player.position;
        this.slider.max = String(player.steps.length);
        this.slider.value = String(player.position);
        const { line } = player.steps[player.position - 1] ?? { line: 'the beginning' };
        const text = `Step ${player.position} of ${player.steps.length}, ${seconds(player.time)}: ${line}`;
        this.slider.setAttribute('aria-valuetext', text);
        this.label.textContent = text;
        this.draw();
    }

    checkZoom() {
        if (this.ratio !== devicePixelRatio) {
            this.draw();
        }
    }

    hueOf(dialog) {
        if (!this.hues.has(dialog)) {
            this.hues.set(dialog, HUES[this.hues.size % HUES.length]);
        }
        return this.hues.get(dialog);
    }

    draw() {
        const { canvas, steps } = this;
        const { clientWidth: width, clientHeight: height } = canvas;
        this.ratio = devicePixelRatio;
        canvas.width = Math.round(width * this.ratio);
        canvas.height = Math.round(height * this.ratio);
        const context = canvas.getContext('2d');
        context.scale(this.ratio, this.ratio);
        const style = getComputedStyle(canvas);
        const isDark = style.colorScheme === 'dark'
            || (style.colorScheme !== 'light' && matchMedia('(prefers-color-scheme: dark)').matches);
        const colours = MARKS[isDark ? 'dark' : 'light'];
        const unit = width / Math.max(steps.length, 1);
        for (let from = 0; from < steps.length;) {
            const { dialog } = steps[from];
            let to = from;
            while (to < steps.length && steps[to].dialog === dialog) {
                ++to;
            }
            if (dialog !== '') {
                context.fillStyle = `hsl(${this.hueOf(dialog)} 45% ${colours.lightness}%)`;
                context.fillRect(from * unit, 0, (to - from) * unit - 1, height - 6);
            }
            context.save();
            context.beginPath();
            context.rect(from * unit, 0, (to - from) * unit - 3, height);
            context.clip();
            context.fillStyle = style.color;
            context.font = '600 11px system-ui, "DejaVu Sans", sans-serif';
            context.textBaseline = 'middle';
            context.fillText(dialog, from * unit + 6, (height - 6) / 2);
            context.restore();
            from = to;
        }
        for (const [number, step] of steps.entries()) {
            if (step.isError || step.popups.length > 0 || advanceOf(step.line) === null) {
                context.fillStyle = step.isError ? colours.error
                    : step.popups.length > 0 ? colours.popup : colours.input;
                context.fillRect(number * unit, height - 5, Math.max(1, unit - 1), 3);
            }
        }
    }
}
