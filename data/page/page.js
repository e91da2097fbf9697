// Plays the lessons of the page. All that is shown is read from their articles, which hold it for readers without a
// script too; words come from attributes of the markup, and none stands here.
'use strict';

const kSeats = 4;  // clockwise from the north
const kCardsInSuit = 13;
const kSuitOrder = [0, 1, 3, 2];  // in a hand, so that the colours alternate
const kCard = {width: 104, height: 156};
const kSpeeds = [3000, 2500, 2000, 1500, 1000, 700, 500, 300, 200, 100];  // milliseconds a card
const kSvg = 'http://www.w3.org/2000/svg';

// Where things lie on the felt, in pixels of the cards' drawings. Hands at the sides stand in two columns.
const kWide = {
    width: 1000, height: 860, step: 38, top: 14, names: {north: 200, south: 674, side: 180},
    side: {scale: 1, margin: 24, top: 192, height: 476, rowStep: 52, backStep: 24},
    trick: {middle: 430, across: 116, down: 82},
};
const kUpright = {
    width: 600, height: 664, step: 38, top: 8, names: {north: 190, south: 488, side: 208},
    side: {scale: 0.7, margin: 8, top: 218, height: 256, rowStep: 25, backStep: 12},
    trick: {middle: 336, across: 88, down: 56},
};
const wideEnough = matchMedia('(min-width: 700px) and (min-aspect-ratio: 1/1)');

const suitOf = card => Math.floor((card - 1) / kCardsInSuit);
const byHand = (one, other) =>
    kSuitOrder.indexOf(suitOf(one)) - kSuitOrder.indexOf(suitOf(other)) || other - one;

function readLesson(article) {
    const seats = [...article.querySelectorAll('.play thead th')].slice(1).map(cell => cell.textContent);
    const lesson = {article, seats, declarer: Number(article.dataset.declarer), cards: [], texts: new Map()};
    for (const row of article.querySelectorAll('.play tr[data-leader]')) {
        const cells = row.querySelectorAll('td');
        for (let i = 0; i < kSeats; ++i) {
            const seat = (Number(row.dataset.leader) + i) % kSeats;
            const cell = cells[seat];
            lesson.cards.push({seat, number: Number(cell.dataset.card), says: cell.querySelector('.spoken').textContent, cell,
                               wonBy: i === kSeats - 1 ? Number(row.dataset.winner) : null});
        }
    }
    for (const row of article.querySelectorAll('.play tr.text'))
        lesson.texts.set(Number(row.dataset.at), row.querySelector('p').textContent);
    return lesson;
}

function svgElement(name, parent, attributes = {}) {
    const element = document.createElementNS(kSvg, name);
    for (const [key, value] of Object.entries(attributes))
        element.setAttribute(key, value);
    return parent.appendChild(element);
}

// Two columns, the first two suits in the first; a long column stands closer.
function sideColumns(hand, layout) {
    const {scale, height, rowStep} = layout.side;
    return [hand.filter(card => kSuitOrder.indexOf(suitOf(card)) < 2),
            hand.filter(card => kSuitOrder.indexOf(suitOf(card)) >= 2)].flatMap((column, number) => {
        const step = Math.min(rowStep, (height - kCard.height * scale) / Math.max(1, column.length - 1));
        return column.map((card, row) => ({card, column: number, down: row * step}));
    });
}

// The places of a hand's cards, in the order in which they lie on each other.
function placesOf(seat, hand, open, layout) {
    const {scale, margin, top, backStep} = layout.side;
    if (seat % 2 === 0) {
        const left = (layout.width - kCard.width - (hand.length - 1) * layout.step) / 2;
        const y = seat === 0 ? layout.top : layout.height - layout.top - kCard.height;
        return hand.map((card, i) => ({card, x: left + i * layout.step, y, scale: 1}));
    }
    const width = kCard.width * scale;
    const columns = open ? sideColumns(hand, layout) : hand.map((card, i) => ({card, column: 0, down: i * backStep}));
    const left = seat === 3 ? margin : layout.width - margin - width * (open ? 2 : 1);
    return columns.map(({card, column, down}) => ({card, x: left + column * width, y: top + down, scale}));
}

function trickPlace(card, seat, layout) {
    const {middle, across, down} = layout.trick;
    const x = layout.width / 2 + [0, across, 0, -across][seat] - kCard.width / 2;
    const y = middle + [-down, 0, down, 0][seat] - kCard.height / 2;
    return {card, x, y, scale: 1};
}

// The cards of a lesson on the felt.
class Table {
    constructor(svg, lesson) {
        this.svg = svg;
        this.lesson = lesson;
        this.frames = svgElement('g', svg, {class: 'frames'});
        this.names = lesson.seats.map(() => svgElement('text', svg));
        this.group = svgElement('g', svg);
        this.uses = new Map(lesson.cards.map(
            ({number}) => [number, svgElement('use', this.group, {width: kCard.width, height: kCard.height})]));
        this.position = -1;
        this.arrange();
    }

    arrange() {
        this.layout = wideEnough.matches ? kWide : kUpright;
        const {width, height, names, side} = this.layout;
        this.svg.setAttribute('viewBox', `0 0 ${width} ${height}`);
        this.frames.replaceChildren();
        for (let seat = 0; seat < kSeats; ++seat) {
            const {x, y} = trickPlace(0, seat, this.layout);
            svgElement('rect', this.frames, {x, y, width: kCard.width, height: kCard.height, rx: 7});
        }
        const places = [[width / 2, names.north, 'middle'], [width - side.margin, names.side, 'end'],
                        [width / 2, names.south, 'middle'], [side.margin, names.side, 'start']];
        places.forEach(([x, y, anchor], seat) => {
            for (const [key, value] of Object.entries({x, y, 'text-anchor': anchor}))
                this.names[seat].setAttribute(key, value);
        });
        const position = this.position;
        this.position = -1;
        if (position >= 0) this.show(position);
    }

    // Closed before the lead; then those of declarer and dummy; behind the last card all.
    isOpen(seat, position) {
        const {cards, declarer} = this.lesson;
        return position > cards.length || (position > 0 && seat % 2 === declarer % 2);
    }

    // What a seat holds; a closed hand in such an order that it loses cards from its end and tells nothing.
    hand(seat, position) {
        const {cards} = this.lesson;
        const played = position > cards.length ? 0 : position;
        const left = cards.slice(played).filter(card => card.seat === seat).map(card => card.number);
        return this.isOpen(seat, position) ? left.sort(byHand) : left.reverse();
    }

    show(position) {
        const {cards} = this.lesson;
        const over = position > cards.length;
        const inTrick = over || position === 0 ? 0 : (position - 1) % kSeats + 1;
        const trick = cards.slice(over ? 0 : position - inTrick, over ? 0 : position);
        const places = [0, 3, 1, 2].flatMap(seat => {
            const open = this.isOpen(seat, position);
            return placesOf(seat, this.hand(seat, position), open, this.layout).map(place => ({...place, open}));
        });
        for (const {number, seat} of trick)
            places.push({...trickPlace(number, seat, this.layout), open: true});
        this.order(places, position);
        const shown = new Set(places.map(place => place.card));
        for (const [card, use] of this.uses)
            use.classList.toggle('gone', !shown.has(card));
        for (const {card, x, y, scale, open} of places) {
            const use = this.uses.get(card);
            use.setAttribute('href', open ? `#kaart-${card}` : '#kaart-0');
            use.style.transform = `translate(${x}px, ${y}px) scale(${scale})`;
        }
        this.showNames(position);
        this.position = position;
    }

    // What is put into its place in the picture anew does not glide: of one card played only that one is.
    order(places, position) {
        const oneOn = position === this.position + 1 && position > 1 && position <= this.lesson.cards.length;
        for (const {card} of oneOn ? places.slice(-1) : places)
            this.group.append(this.uses.get(card));
        this.group.getBoundingClientRect();  // the browser now knows where it glides from
    }

    showNames(position) {
        const {seats, declarer, cards} = this.lesson;
        const {declarer: leads, dummy} = this.svg.dataset;
        this.names.forEach((name, seat) => {
            const role = seat === declarer ? leads : seat === (declarer + 2) % kSeats ? dummy : '';
            name.textContent = seats[seat] + (role ? ` · ${role}` : '');
            name.classList.toggle('turn', cards[position]?.seat === seat);
        });
    }
}

// A lesson that is played: position 0 is the question, 1 to 52 the cards, and behind them all hands lie open.
class Player {
    constructor(article) {
        this.lesson = readLesson(article);
        this.article = article;
        article.tabIndex = -1;  // the focus goes there from the list
        article.append(document.getElementById('player').content.cloneNode(true));
        this.part = name => article.querySelector(`.${name}`);
        this.table = new Table(this.part('felt'), this.lesson);
        this.speed = kSpeeds.indexOf(1000);
        this.timer = null;
        const clicks = {main: () => this.press(), back: () => this.step(-1), forward: () => this.step(1),
                        slower: () => this.changeSpeed(-1), faster: () => this.changeSpeed(1)};
        for (const [name, action] of Object.entries(clicks))
            this.part(name).addEventListener('click', action);
        this.part('stage').addEventListener('click', event => this.tap(event));
        this.changeSpeed(0);
        this.go(0);
    }

    get last() { return this.lesson.cards.length + 1; }

    // The one button: starts, stops for a moment, goes on.
    press() {
        if (this.timer !== null) {
            this.stop();
            this.showButtons();
        } else if (this.position === this.last) {
            this.go(0);
        } else {
            this.playOn();
        }
    }

    playOn() {
        this.go(this.position + 1);
        if (this.position < this.last && !this.lesson.texts.has(this.position)) this.run();
        this.showButtons();
    }

    run() {
        this.timer = setTimeout(() => {
            this.timer = null;
            this.playOn();
        }, kSpeeds[this.speed]);
    }

    stop() {
        clearTimeout(this.timer);
        this.timer = null;
    }

    step(cards) {
        this.stop();
        this.go(this.position + cards);
    }

    // The left third of the felt goes back.
    tap(event) {
        const box = event.currentTarget.getBoundingClientRect();
        if (event.clientX < box.left + box.width / 3) this.step(-1);
        else this.press();
    }

    changeSpeed(by) {
        this.speed = Math.max(0, Math.min(kSpeeds.length - 1, this.speed + by));
        const seconds = (kSpeeds[this.speed] / 1000).toLocaleString('nl');
        this.part('speed').textContent = `${seconds} s`;
        this.part('speed').setAttribute('aria-label', `${seconds} ${this.part('speed').dataset.unit}`);
        if (this.timer === null) return;
        this.stop();
        this.run();
    }

    go(position) {
        this.position = Math.max(0, Math.min(this.last, position));
        this.article.dataset.state = this.position === 0 ? 'question' : this.position === this.last ? 'end' : 'play';
        this.table.show(this.position);
        this.showText();
        this.showTricks();
        this.tell();
        this.showButtons();
    }

    showText() {
        const text = this.part('note');
        text.textContent = this.lesson.texts.get(this.position) ?? '';
        if (text.textContent) text.scrollIntoView({block: 'nearest'});
    }

    showTricks() {
        const won = [0, 0];
        this.lesson.cards.forEach(({cell, wonBy}, i) => {
            cell.classList.toggle('closed', i >= this.position);
            cell.parentElement.classList.toggle('closed', i - i % kSeats >= this.position);
            if (wonBy !== null && i < this.position) ++won[wonBy % 2];
        });
        this.part('north-south').textContent = won[0];
        this.part('east-west').textContent = won[1];
    }

    // For a screen reader.
    tell() {
        const told = this.part('told');
        const card = this.lesson.cards[this.position - 1];
        told.textContent = !card ? '' : `${this.lesson.seats[card.seat]} ${told.dataset.plays} ${card.says}. ` +
            (card.wonBy === null ? '' : `${told.getAttribute(`data-side-${card.wonBy % 2}`)}.`);
        const names = new Map(this.lesson.cards.map(({number, says}) => [number, says]));
        this.part('open').replaceChildren(...this.lesson.seats.flatMap((name, seat) => {
            if (!this.table.isOpen(seat, this.position)) return [];
            const item = document.createElement('li');
            item.textContent = `${name}: ${this.table.hand(seat, this.position).map(c => names.get(c)).join(', ')}`;
            return [item];
        }));
    }

    showButtons() {
        const {start, pause, on, again} = this.part('main').dataset;
        this.part('main').textContent = this.timer !== null ? pause
            : this.position === 0 ? start : this.position === this.last ? again : on;
    }

    key(event) {
        const onControl = event.target.closest('button, summary, a');
        const actions = {ArrowRight: () => this.step(1), ArrowLeft: () => this.step(-1),
                         Home: () => this.step(-this.last), End: () => this.step(this.last),
                         '+': () => this.changeSpeed(1), '-': () => this.changeSpeed(-1)};
        if (!onControl) actions[' '] = actions.Enter = () => this.press();
        if (!actions[event.key] || event.ctrlKey || event.altKey || event.metaKey) return;
        event.preventDefault();
        actions[event.key]();
    }
}

const players = new Map();
const articles = [...document.querySelectorAll('article')];
const main = document.querySelector('main');
let shown = null;

// Shows the lesson that the address names, or else the list; a single lesson at once.
function open() {
    const article = articles.length === 1 ? articles[0] : articles.find(each => `#${each.id}` === location.hash);
    if (shown) shown.stop();
    articles.forEach(each => each.classList.toggle('chosen', each === article));
    main.classList.toggle('in-lesson', Boolean(article));
    if (article && !players.has(article)) players.set(article, new Player(article));
    shown = players.get(article) ?? null;
    shown?.go(0);
    scrollTo(0, 0);
}

main.classList.add('live');
addEventListener('hashchange', () => {
    open();
    shown?.article.focus();
});
document.addEventListener('keydown', event => shown?.key(event));
wideEnough.addEventListener('change', () => players.forEach(player => player.table.arrange()));
open();
