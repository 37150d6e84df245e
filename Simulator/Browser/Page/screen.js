// SPDX-License-Identifier: MIT
/** Draws the screen of the device, takes touches and keys on it, and says what is on it for assistive technology. */

import { nameOf } from './inspection.js';

const COLOURS = {
    ground: '#0f1a22', title: '#f6efe4', rule: '#2d4657', text: '#dbe5ec', quiet: '#9fb3c0',
    button: '#20384a', edge: '#3d6079', label: '#eef6fb',
    focus: '#ffb54d', onFocus: '#241603',
    track: '#2a4152', fill: '#58c08d',
    window: '#16262f', windowTitle: '#284558',
    popup: '#fff6e8', popupTitle: '#ffcf8a', popupText: '#2b1c07', popupButton: '#f1dcb9', popupEdge: '#b78a45',
    modalTitle: '#b83a1b', onModal: '#ffffff',
};

/** What a keyboard's keys do to the widget that has the focus, unless the device has such a key itself. */
const KEYS = {
    ArrowUp: 'up', ArrowDown: 'down', ArrowLeft: 'left', ArrowRight: 'right', Enter: 'activate', ' ': 'activate',
    Backspace: 'backspace', Delete: 'delete', Home: 'home', End: 'end',
};

const ROLES = {
    screen: 'group', popup: 'group', container: 'group', label: 'note', image: 'img', button: 'button',
    checkbox: 'checkbox', bar: 'meter', slider: 'slider', list: 'listbox', textfield: 'textbox', widget: 'note',
};

const LEAST_ROW = 24; // a finger meets no smaller one

export class Screen {
    /**
     * @param {HTMLCanvasElement} canvas
     * @param {object} device as the engine describes it
     * @param {(line: string) => void} onInput takes a line for each touch and key
     */
    constructor(canvas, device, onInput) {
        this.canvas = canvas;
        this.context = canvas.getContext('2d');
        this.onInput = onInput;
        this.widgets = [];
        this.touches = [];
        this.setDevice(device);
        canvas.addEventListener('click', (event) => this.touch(event));
        canvas.addEventListener('keydown', (event) => this.press(event));
        new ResizeObserver(() => this.fit()).observe(canvas.parentElement);
    }

    setDevice(device) {
        this.device = device;
        this.keys = new Map(device.keys.filter((key) => key.keyboard !== '').map((key) => [key.keyboard, key.name]));
        this.keys.delete('Tab'); // it must leave the screen
        this.fit();
    }

    /** Looks whether somebody has zoomed. Not every zoom changes the size of an element. */
    checkZoom() {
        if (this.ratio !== devicePixelRatio) {
            this.fit();
        }
    }

    /** Gives the canvas a pixel for every pixel of the display. */
    fit() {
        const { width, height, columnwidth, rowheight } = this.device;
        const style = getComputedStyle(this.canvas.parentElement);
        const room = this.canvas.parentElement.clientWidth - parseFloat(style.paddingLeft)
            - parseFloat(style.paddingRight);
        this.unitX = Math.max(room, 1) / width;
        const isOfCharacters = columnwidth === 1 && rowheight === 1;
        this.unitY = isOfCharacters ? Math.max(this.unitX * 2, LEAST_ROW) : this.unitX;
        this.ratio = devicePixelRatio;
        this.canvas.style.width = `${room}px`;
        this.canvas.style.height = `${height * this.unitY}px`;
        this.canvas.width = Math.round(room * this.ratio);
        this.canvas.height = Math.round(height * this.unitY * this.ratio);
        this.draw();
    }

    touch(event) {
        const area = this.canvas.getBoundingClientRect();
        const x = Math.floor((event.clientX - area.left) / this.unitX);
        const y = Math.floor((event.clientY - area.top) / this.unitY);
        if (x >= 0 && y >= 0 && x < this.device.width && y < this.device.height) {
            this.showTouch(event.clientX - area.left, event.clientY - area.top);
            this.onInput(`touch-at ${x} ${y}`);
        }
    }

    showTouch(x, y) {
        if (!matchMedia('(prefers-reduced-motion: reduce)').matches) {
            this.touches.push({ x, y, began: performance.now() });
            requestAnimationFrame(() => this.draw());
        }
    }

    press(event) {
        if (event.ctrlKey || event.metaKey || event.altKey) {
            return;
        }
        const isText = this.widgets.some((widget) => widget.kind === 'textfield' && widget.focus);
        let line = null;
        if (isText && event.key.length === 1) {
            line = `type '${event.key}'`;
        } else if (this.keys.has(event.key)) {
            line = `key ${this.keys.get(event.key)}`;
        } else if (KEYS[event.key]) {
            line = `press ${KEYS[event.key]}`;
        }
        if (line) {
            event.preventDefault();
            this.onInput(line);
        }
    }

    show(widgets) {
        this.widgets = widgets;
        this.describe();
        this.draw();
    }

    /** What the widgets are, below the canvas element: nobody sees it, but it is what is there. */
    describe() {
        const path = [this.canvas];
        const top = document.createDocumentFragment();
        this.canvas.removeAttribute('aria-activedescendant');
        for (const [number, widget] of this.widgets.entries()) {
            const element = document.createElement('div');
            element.id = `widget-${number}`;
            element.setAttribute('role', ROLES[widget.kind]);
            this.label(element, widget);
            element.dataset.kind = widget.kind;
            element.dataset.name = widget.id === 0 ? '' : nameOf(widget);
            element.dataset.area = [widget.x, widget.y, widget.width, widget.height].join(' ');
            path.length = widget.depth + 1;
            (widget.depth === 0 ? top : path[widget.depth]).append(element);
            path.push(element);
            if (widget.focus) {
                this.canvas.setAttribute('aria-activedescendant', element.id);
            }
        }
        this.canvas.replaceChildren(top);
    }

    label(element, widget) {
        if (ROLES[widget.kind] === 'note') {
            element.textContent = widget.text;
            return;
        }
        element.setAttribute('aria-label', widget.text || (widget.id === 0 ? widget.kind : nameOf(widget)));
        if (widget.kind === 'bar' || widget.kind === 'slider') {
            element.setAttribute('aria-valuemin', widget.minimum);
            element.setAttribute('aria-valuemax', widget.maximum);
            element.setAttribute('aria-valuenow', widget.value);
        } else if (widget.kind === 'checkbox') {
            element.setAttribute('aria-checked', String(widget.value !== 0));
        } else if (widget.kind === 'textfield') {
            element.textContent = widget.entry;
        } else if (widget.kind === 'list') {
            for (const [row, entry] of widget.entries.entries()) {
                const option = document.createElement('div');
                option.setAttribute('role', 'option');
                option.setAttribute('aria-selected', String(widget.first + row === widget.value));
                option.textContent = entry.text;
                element.append(option);
            }
        }
    }

    // ---- Drawing -----------------------------------------------------------------------------------------------

    draw() {
        const { context, ratio } = this;
        context.setTransform(ratio, 0, 0, ratio, 0, 0);
        context.fillStyle = COLOURS.ground;
        context.fillRect(0, 0, this.canvas.width / ratio, this.canvas.height / ratio);
        this.row = this.unitY * this.device.rowheight;
        const size = Math.max(11, Math.min(this.row * 0.58, this.unitX * this.device.columnwidth * 1.6));
        this.font = (weight, scale = 1) => `${weight} ${size * scale}px system-ui, "DejaVu Sans", sans-serif`;
        context.textBaseline = 'middle';
        let paper = 'dialog';
        const papers = [];
        for (const widget of this.widgets) {
            papers.length = widget.depth;
            if (widget.kind === 'screen' || widget.kind === 'popup') {
                paper = widget.kind === 'popup' ? 'popup' : 'dialog';
            } else {
                paper = papers[widget.depth - 1] ?? paper;
            }
            papers.push(paper);
            this.paint(widget, paper === 'popup');
        }
        this.paintTouches();
    }

    paint(widget, isOnPopup) {
        const area = {
            x: widget.x * this.unitX, y: widget.y * this.unitY,
            width: widget.width * this.unitX, height: widget.height * this.unitY,
        };
        const painters = {
            screen: 'paintScreen', popup: 'paintPopup', container: null, button: 'paintButton', bar: 'paintBar',
            slider: 'paintSlider', checkbox: 'paintCheckBox', list: 'paintList', textfield: 'paintTextField',
            image: 'paintImage',
        };
        const painter = painters[widget.kind] === undefined ? 'paintText' : painters[widget.kind];
        if (painter) {
            this[painter](widget, area, isOnPopup);
        }
    }

    box({ x, y, width, height }, radius, fill, edge, thickness = 1) {
        const { context } = this;
        context.beginPath();
        context.roundRect(x, y, Math.max(width, 0), Math.max(height, 0), radius);
        if (fill) {
            context.fillStyle = fill;
            context.fill();
        }
        if (edge) {
            context.strokeStyle = edge;
            context.lineWidth = thickness;
            context.stroke();
        }
    }

    text(text, x, y, width, colour, { weight = 400, align = 'left', scale = 1 } = {}) {
        const { context } = this;
        context.font = this.font(weight, scale);
        context.fillStyle = colour;
        context.textAlign = align;
        context.fillText(text, x, y, Math.max(width, 1));
    }

    paintScreen(widget, area) {
        const isWhole = widget.width >= this.device.width && widget.height >= this.device.height;
        if (isWhole) {
            this.box(area, 0, COLOURS.ground);
            this.text(widget.text, area.x + this.unitX * 1.5 * this.device.columnwidth, area.y + this.row * 0.72,
                area.width - this.unitX * 3, COLOURS.title, { weight: 650, scale: 1.15 });
            this.context.fillStyle = COLOURS.rule;
            this.context.fillRect(area.x, Math.round(area.y + this.row * 1.45), area.width, 1);
            return;
        }
        this.shadowed(() => this.box(area, 8, COLOURS.window, COLOURS.edge));
        this.titleBar(area, 8, COLOURS.windowTitle, widget.text, COLOURS.title);
    }

    paintPopup(widget, area) {
        this.shadowed(() => this.box(area, 8, COLOURS.popup));
        this.titleBar(area, 8, widget.modal ? COLOURS.modalTitle : COLOURS.popupTitle, widget.text,
            widget.modal ? COLOURS.onModal : COLOURS.popupText);
        this.box(area, 8, null, widget.modal ? COLOURS.modalTitle : COLOURS.popupEdge, 1.5);
    }

    shadowed(paint) {
        const { context } = this;
        context.save();
        context.shadowColor = 'rgb(0 0 0 / 55%)';
        context.shadowBlur = 16;
        context.shadowOffsetY = 4;
        paint();
        context.restore();
    }

    titleBar(area, radius, fill, title, colour) {
        this.box({ ...area, height: this.row }, [radius, radius, 0, 0], fill);
        this.text(title, area.x + this.unitX * this.device.columnwidth, area.y + this.row * 0.54,
            area.width - 2 * this.unitX, colour, { weight: 650 });
    }

    paintText(widget, area, isOnPopup) {
        this.text(widget.text, area.x, area.y + Math.min(area.height, this.row) / 2, area.width,
            isOnPopup ? COLOURS.popupText : COLOURS.text);
    }

    paintButton(widget, area, isOnPopup) {
        const inset = Math.min(3, this.row * 0.1);
        const box = { x: area.x + 1, y: area.y + inset / 2, width: area.width - 2, height: area.height - inset };
        const fill = isOnPopup ? COLOURS.popupButton : COLOURS.button;
        const edge = isOnPopup ? COLOURS.popupEdge : COLOURS.edge;
        const colour = isOnPopup ? COLOURS.popupText : COLOURS.label;
        const radius = Math.min(7, box.height / 3);
        if (widget.focus) {
            this.box(box, radius, COLOURS.focus, isOnPopup ? COLOURS.popupText : COLOURS.title, 2);
        } else {
            this.box(box, radius, fill, edge);
        }
        this.text(widget.text, box.x + box.width / 2, box.y + box.height / 2 + 1, box.width - 8,
            widget.focus ? COLOURS.onFocus : colour, { weight: widget.focus ? 650 : 500, align: 'center' });
    }

    share(widget) {
        const range = widget.maximum - widget.minimum;
        return range > 0 ? (widget.value - widget.minimum) / range : 0;
    }

    paintBar(widget, area, isOnPopup) {
        const height = Math.min(area.height * 0.4, 12);
        const track = { x: area.x, y: area.y + (this.row - height) / 2, width: area.width, height };
        const share = this.share(widget);
        this.box(track, height / 2, COLOURS.track);
        this.box({ ...track, width: Math.max(height, track.width * share) }, height / 2,
            share > 0.15 ? COLOURS.fill : COLOURS.focus);
        const gap = this.unitX * this.device.columnwidth * 0.8;
        const room = this.device.width * this.unitX - track.x - track.width - gap;
        this.text(`${Math.round(share * 100)}%`, track.x + track.width + gap, area.y + this.row / 2, room,
            isOnPopup ? COLOURS.popupText : COLOURS.quiet, { scale: 0.92 });
    }

    paintSlider(widget, area, isOnPopup) {
        const height = Math.min(area.height * 0.25, 6);
        const radius = Math.min(area.height * 0.36, 11);
        const y = area.y + area.height / 2;
        const x = area.x + radius + (area.width - 2 * radius) * this.share(widget);
        this.box({ x: area.x, y: y - height / 2, width: area.width, height }, height / 2, COLOURS.track);
        this.box({ x: area.x, y: y - height / 2, width: x - area.x, height }, height / 2, COLOURS.fill);
        this.box({ x: x - radius, y: y - radius, width: 2 * radius, height: 2 * radius }, radius,
            widget.focus ? COLOURS.focus : COLOURS.label, isOnPopup ? COLOURS.popupText : COLOURS.ground, 2);
    }

    paintCheckBox(widget, area, isOnPopup) {
        const side = Math.min(this.row * 0.66, 20);
        const box = { x: area.x + 2, y: area.y + (this.row - side) / 2, width: side, height: side };
        const colour = isOnPopup ? COLOURS.popupText : COLOURS.text;
        this.box(box, 4, widget.value ? COLOURS.fill : COLOURS.button,
            widget.focus ? COLOURS.focus : COLOURS.edge, widget.focus ? 3 : 1);
        if (widget.value) {
            this.text('✓', box.x + side / 2, box.y + side / 2 + 1, side, COLOURS.onFocus,
                { weight: 700, align: 'center' });
        }
        this.text(widget.text, box.x + side + 8, area.y + this.row / 2, area.width - side - 8, colour);
    }

    paintList(widget, area) {
        const height = widget.rowheight * this.unitY;
        this.box(area, 6, COLOURS.window, widget.focus ? COLOURS.focus : COLOURS.edge, widget.focus ? 2 : 1);
        for (const [row, entry] of widget.entries.entries()) {
            const place = { x: area.x + 2, y: area.y + row * height + 1, width: area.width - 4, height: height - 2 };
            const isSelected = widget.first + row === widget.value;
            if (isSelected) {
                this.box(place, 4, widget.focus ? COLOURS.focus : COLOURS.button);
            }
            this.text(entry.text, place.x + 6, place.y + height / 2, place.width - 12,
                isSelected && widget.focus ? COLOURS.onFocus : COLOURS.text);
        }
    }

    paintTextField(widget, area) {
        this.box({ ...area, y: area.y + 1, height: area.height - 2 }, 5, COLOURS.window,
            widget.focus ? COLOURS.focus : COLOURS.edge, widget.focus ? 2 : 1);
        const y = area.y + Math.min(area.height, this.row) / 2;
        const isEmpty = widget.entry === '';
        this.text(isEmpty ? widget.text : widget.entry, area.x + 6, y, area.width - 12,
            isEmpty ? COLOURS.quiet : COLOURS.text);
        if (widget.focus) {
            const before = [...widget.entry].slice(0, widget.cursor).join('');
            const x = area.x + 6 + Math.min(this.context.measureText(before).width, area.width - 12);
            this.context.fillStyle = COLOURS.focus;
            this.context.fillRect(x, y - this.row * 0.32, 2, this.row * 0.64);
        }
    }

    paintImage(widget, area) {
        this.box(area, 4, COLOURS.track, COLOURS.edge);
        this.text(widget.text || widget.image, area.x + area.width / 2, area.y + area.height / 2, area.width - 8,
            COLOURS.quiet, { align: 'center' });
    }

    paintTouches() {
        const now = performance.now();
        this.touches = this.touches.filter(({ began }) => now - began < 350);
        for (const { x, y, began } of this.touches) {
            const age = (now - began) / 350;
            const radius = 6 + 22 * age;
            this.box({ x: x - radius, y: y - radius, width: 2 * radius, height: 2 * radius }, radius, null,
                `rgb(255 255 255 / ${Math.round((1 - age) * 70)}%)`, 2);
        }
        if (this.touches.length > 0) {
            requestAnimationFrame(() => this.draw());
        }
    }
}
